<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>lock_cannot_hold</source>
        <translation>لا يسمح سطح المكتب هذا لأي نافذة بالبقاء فوق غيرها، لذا لا يمكن للقفل أن يصمد هنا.</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>الرقم %1 من 6</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>مسح الرقم الأخير</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>أدخل كلمة المرور المكوّنة من ستة أرقام</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>في انتظار الخدمة على هذا الجهاز. تُقبل الأرقام حالما تستجيب.</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>قفل الشاشة</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>إدخال كلمة المرور</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>قفل %1 هذه الشاشة حتى الساعة %2.</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>قفل %1 هذه الشاشة.</translation>
    </message>
</context>
</TS>

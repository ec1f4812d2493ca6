<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>قفلت مؤسستك إعدادات هذا الجهاز. أدخل كلمة المرور المكوّنة من ستة أرقام لفتحها.</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>كلمة المرور لدى المسؤول.</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1 مقفلة</translation>
    </message>
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
        <source>menu_settings</source>
        <translation>الإعدادات</translation>
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
    <message>
        <source>setting_permission_content</source>
        <translation>قفل المسؤول هذا الإعداد. أدخل كلمة المرور المكوّنة من ستة أرقام لتغييره.</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>هذا الإعداد مقفل</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>لن تعتني مؤسستك بهذا الجهاز بعد ذلك.</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>كلمة المرور هذه غير صحيحة.</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>محاولات خاطئة كثيرة. ألغِ وعُد بعد دقيقة.</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>أدخل كلمة المرور المكوّنة من ستة أرقام للمتابعة.</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>كلمة المرور لدى المسؤول.</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
</TS>

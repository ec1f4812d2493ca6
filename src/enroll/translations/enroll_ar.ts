<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>تم تسجيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>تحديد موقع هذا الجهاز</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>هنا ترى المؤسسة التي يتبع لها هذا الجهاز ومن يديره.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>تسجيل الجهاز</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>يرجى قراءة الاتفاقية وقبولها أولًا.</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>الوسوم</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>القائمة طويلة جدًا: للجهاز %1 وسمًا على الأكثر.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>تم التعديل بنجاح</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>حاليًا تعرض هذه الصفحة الحالة الراهنة فقط.</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>يتعذر الوصول إلى الخدمة. لم يتغير شيء.</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>ما الذي يُسمح لمؤسستك به؟</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>يسري كل تغيير فورًا.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>يرى المسؤولون ما يظهر على هذه الشاشة.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>عرض الشاشة</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>يستخدم المسؤولون فأرة هذا الجهاز ولوحة مفاتيحه. ويتطلب ذلك عرض الشاشة.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>التحكم عن بُعد</translation>
    </message>
    <message>
        <source>tag_refused_blank</source>
        <translation>اكتب وسمًا أولًا.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>لدى الجهاز هذا الوسم بالفعل.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>يتكون الوسم من %1 حرفًا على الأكثر.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>إزالة الوسم %1</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>يحتوي النموذج على ما ورد في الملف %1. تحقق منه، واقبل الاتفاقية، ثم سجّل هذا الجهاز.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>تم الملء من محرك USB</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>ينقص ملف التسجيل على محرك USB الرمز أو الحساب.</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>ملف التسجيل على محرك USB ليس نص JSON بترميز UTF-8.</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>ملف التسجيل على محرك USB رابط وليس ملفًا مستقلًا.</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>حجم ملف التسجيل على محرك USB أكبر من %1 كيبيبايت.</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>تتعذر قراءة ملف التسجيل على محرك USB.</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>تنسيق ملف التسجيل على محرك USB غير صحيح.</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>وسم آخر</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>إضافة</translation>
    </message>
</context>
</TS>

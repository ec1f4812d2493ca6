<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>لا يوجد اتصال بمؤسستك</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>لم يُسجَّل الجهاز. تحقق من البيانات وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>الرمز والبريد الإلكتروني غير متطابقين.</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>تعذّر الوصول إلى خدمة الإدارة. تحقق من الشبكة.</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>تم تسجيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>لم ينجح ذلك</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>يتصل الجهاز تلقائيًا حالما يستطيع. وإن لم يتصل فقد يكون السبب في الشبكة.</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>فحص الشبكة</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>تعذّر الوصول إلى الخدمة على هذا الجهاز. تحقق من الشبكة أو حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>هنا ترى المؤسسة التي يتبع لها هذا الجهاز ومن يديره.</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>أدخل ما حصلت عليه من مؤسستك. بعد ذلك تتولى المؤسسة إدارة هذا الجهاز.</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>هذا الجهاز مسجّل.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>تسجيل الجهاز</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>خطأ.</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>يرجى قراءة الاتفاقية وقبولها أولًا.</translation>
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
        <source>permission_done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>تُغيَّر الإعدادات المقفلة في صفحة «%1».</translation>
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
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>توضح &lt;b&gt;سياسة الخصوصية&lt;/b&gt; بيانات هذا الجهاز التي تتلقاها المؤسسة.</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>توضح &lt;b&gt;اتفاقية المستخدم&lt;/b&gt; ما توافق عليه عند تسجيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>تعذّر التسجيل.</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>تعذّر إلغاء التسجيل.</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>عُثر على ملف تسجيل على محرك USB، لكن هذا الجهاز مسجّل بالفعل.</translation>
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
        <source>view_register_admin_account</source>
        <translation>البريد الإلكتروني للمسؤول</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>قرأت كليهما وأوافق.</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>اسم الجهاز</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>مثل: القاعة 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>بداية الاسم</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>نهاية الاسم</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>عنوان البريد الإلكتروني غير صالح.</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>يرجى ملء هذا الحقل.</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>يتكوّن الرمز من ستة أحرف بالضبط.</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>الاسم في حقلين</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>الاسم في حقل واحد</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>سياسة الخصوصية</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>رمز المؤسسة</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>ستة أحرف</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>اتفاقية المستخدم</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>وسم آخر</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>تسجيل</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>إلغاء تسجيل هذا الجهاز</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>إضافة</translation>
    </message>
</context>
</TS>

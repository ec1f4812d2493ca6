<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>الجزء الذي تراه من إدارة الجهاز. يعمل مع خدمة على هذا الجهاز.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>حول Velmora RYX</translation>
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
        <source>fact_addresses</source>
        <translation>عناوين الشبكة</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>المسؤول</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>اسم الجهاز</translation>
    </message>
    <message>
        <source>fact_local_service</source>
        <translation>الخدمة على هذا الجهاز</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>خدمة الإدارة</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>المؤسسة</translation>
    </message>
    <message>
        <source>fact_service_not_reached</source>
        <translation>يتعذّر الوصول إليها</translation>
    </message>
    <message>
        <source>fact_service_reached</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>الوسوم</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>features_sentence</source>
        <translation>هنا ترى النوافذ المنبثقة المحظورة على هذا الجهاز.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>الميزات</translation>
    </message>
    <message>
        <source>feedback_note</source>
        <translation>لا يمكن إرسال التقارير من هذا الإصدار بعد. حتى ذلك الحين يُرجى إبلاغ المسؤول مباشرة.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>من هنا توصف المشكلة وتُبلَّغ إلى المسؤول مع سجلات هذا الجهاز.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>تقرير السجل</translation>
    </message>
    <message>
        <source>header_no_organisation</source>
        <translation>لا تديره أي مؤسسة بعد</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>الاتصال بخدمة الإدارة: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>تسجيل هذا الجهاز</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>يتيح Velmora RYX لمؤسستك العناية بهذا الجهاز: تحديثه، والمساعدة عند حدوث خلل، وحمايته في غيابك.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>جهّز رمز المؤسسة المكوّن من ستة أحرف والبريد الإلكتروني للمسؤول.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>تم: تظهر في الأعلى كلمة «متصل».</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>سجّل هذا الجهاز. يستغرق ذلك نحو دقيقة.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>مرحبًا بك في Velmora RYX</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>تُشغَّل هنا وتُوقف القنوات التي ترسلها مؤسستك إلى هذه الشاشة.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>القنوات المباشرة</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>الميزات</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>القنوات المباشرة</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>يتعذّر الوصول إلى خدمة الإدارة</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>تدير مؤسستك بعض الإعدادات</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>القائمة الرئيسية</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>هنا ترى كيف يصل هذا الجهاز إلى خدمة الإدارة.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>يُرجى التواصل مع مسؤول تقنية المعلومات</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>الإبلاغ عن مشكلة</translation>
    </message>
    <message>
        <source>room_note_state_only</source>
        <translation>حاليًا تعرض هذه الصفحة الحالة الراهنة فقط.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>مظهر هذا البرنامج ولغته. يسري الاختيار فورًا.</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>غير مسجَّل</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>تم تغيير قناة هذا الجهاز.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 «%2». %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>الاتصال: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>تعذّر الاتصال بالشبكة</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>هذا الجهاز مسجَّل بالفعل. لم تُستخدم البيانات الموجودة على محرك USB.</translation>
    </message>
    <message>
        <source>usb_bind_success</source>
        <translation>تمت قراءة بيانات التسجيل من محرك USB.</translation>
    </message>
</context>
</TS>

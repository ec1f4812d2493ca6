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
        <source>fact_addresses</source>
        <translation>عناوين الشبكة</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>لا يوجد على هذا الجهاز برنامج يشغّل عناوين «%1».</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>يتعذر الوصول إلى الخدمة على هذا الجهاز: لا يمكن تشغيل القنوات أو إيقافها الآن.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>لا تقدم مؤسستك أي قنوات حاليًا.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>تظهر القنوات هنا بعد تسجيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>هذه القائمة تعود إلى ما قبل انقطاع الاتصال.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>لا يمكن تشغيل عنوان هذه القناة. أبلغ المسؤول.</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>تُشغَّل هنا وتُوقف القنوات التي ترسلها مؤسستك إلى هذه الشاشة.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>أُوقفت القناة. إذا كان المشغّل لا يزال مفتوحًا فأغلقه بنفسك.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>القنوات المباشرة</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>القناة %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>لم تُبلغ الخدمة بعد بالقنوات المتاحة.</translation>
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
        <source>settings_language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>مظهر هذا البرنامج ولغته، وما يُسمح لمؤسستك بفعله على هذا الجهاز.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>كبير</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>كبير جدًا</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>حجم النص</translation>
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
        <source>settings_theme_system</source>
        <translation>مثل النظام</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>الإعدادات</translation>
    </message>
</context>
</TS>

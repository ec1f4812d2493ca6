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
        <source>live_sentence</source>
        <translation>تُشغَّل هنا وتُوقف القنوات التي ترسلها مؤسستك إلى هذه الشاشة.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>القنوات المباشرة</translation>
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
        <source>page_note_state_only</source>
        <translation>حاليًا تعرض هذه الصفحة الحالة الراهنة فقط.</translation>
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

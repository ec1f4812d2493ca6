<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>message_address_open</source>
        <translation>فتح الصفحة</translation>
    </message>
    <message>
        <source>message_address_title</source>
        <translation>هل تريد فتح هذه الصفحة في المتصفح؟</translation>
    </message>
    <message>
        <source>message_count</source>
        <translation>%1 أخرى</translation>
    </message>
    <message>
        <source>message_file_absent</source>
        <translation>الملف ليس على هذا الجهاز.</translation>
    </message>
    <message>
        <source>message_file_again</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>message_file_cancel</source>
        <translation>إلغاء التنزيل</translation>
    </message>
    <message>
        <source>message_file_disk_full</source>
        <translation>لا توجد مساحة كافية للملف.</translation>
    </message>
    <message>
        <source>message_file_loading</source>
        <translation>جارٍ التنزيل… %1%</translation>
    </message>
    <message>
        <source>message_file_open</source>
        <translation>فتح الملف</translation>
    </message>
    <message>
        <source>message_file_save_as</source>
        <translation>حفظ باسم…</translation>
    </message>
    <message>
        <source>message_file_saved</source>
        <translation>حُفظ باسم %1.</translation>
    </message>
    <message>
        <source>message_file_show</source>
        <translation>عرض في المجلد</translation>
    </message>
    <message>
        <source>message_file_unverified</source>
        <translation>لم يقدّم المرسل رمز تحقق، لذا تعذّر التحقق منه.</translation>
    </message>
    <message>
        <source>message_file_unwritable</source>
        <translation>تعذّرت كتابة الملف.</translation>
    </message>
    <message>
        <source>message_file_wrong</source>
        <translation>ما وصل ليس الملف المُرسَل، ولم يُحتفظ به.</translation>
    </message>
    <message>
        <source>message_kept_open</source>
        <translation>يُبقي المسؤول هذه الرسالة مفتوحة.</translation>
    </message>
    <message>
        <source>message_state_new</source>
        <translation>جديدة</translation>
    </message>
    <message>
        <source>message_state_read</source>
        <translation>مقروءة</translation>
    </message>
    <message>
        <source>message_state_withdrawn</source>
        <translation>مسحوبة</translation>
    </message>
    <message>
        <source>message_title</source>
        <translation>رسالة من المسؤول</translation>
    </message>
    <message>
        <source>message_title_emergency</source>
        <translation>حالة طارئة</translation>
    </message>
    <message>
        <source>messages_none</source>
        <translation>لا توجد رسائل.</translation>
    </message>
    <message>
        <source>messages_title</source>
        <translation>الرسائل</translation>
    </message>
</context>
</TS>

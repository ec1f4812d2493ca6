<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>هنا ترى المؤسسة التي يتبع لها هذا الجهاز ومن يديره.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>تسجيل الجهاز</translation>
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
        <source>page_note_state_only</source>
        <translation>حاليًا تعرض هذه الصفحة الحالة الراهنة فقط.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>يُرجى الانتظار…</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>هنا ترى النوافذ المنبثقة المحظورة على هذا الجهاز.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>الميزات</translation>
    </message>
</context>
</TS>

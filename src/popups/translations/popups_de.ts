<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Hier sehen Sie, welche Pop-up-Fenster auf diesem Gerät blockiert werden.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funktionen</translation>
    </message>
</context>
</TS>

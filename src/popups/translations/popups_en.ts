<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Here you see which pop-up windows are blocked on this device.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Features</translation>
    </message>
</context>
</TS>

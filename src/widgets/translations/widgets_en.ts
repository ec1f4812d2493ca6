<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Close window</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>Please wait …</translation>
    </message>
</context>
</TS>

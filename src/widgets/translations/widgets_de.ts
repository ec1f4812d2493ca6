<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>Bitte warten …</translation>
    </message>
</context>
</TS>

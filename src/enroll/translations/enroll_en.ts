<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>Here you see which organisation this device belongs to and who administers it.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Enrolment</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>For now this page only shows how things stand.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>Hier sehen Sie, zu welcher Organisation dieses Gerät gehört und wer es verwaltet.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administration</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Vorerst zeigt diese Seite nur den Stand der Dinge.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>Mit dieser Version lassen sich noch keine Berichte senden. Bitte wenden Sie sich bis dahin direkt an Ihre Administration.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Von hier aus beschreiben und melden Sie Ihrer Administration ein Problem, zusammen mit den Protokollen dieses Geräts.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Protokollbericht</translation>
    </message>
</context>
</TS>

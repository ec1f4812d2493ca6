<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>Reports cannot be sent from this version yet. Until then please tell your administrator directly.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>From here a problem is described and reported to your administrator, together with the logs of this device.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Log Report</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>Vous voyez ici à quelle organisation appartient cet appareil et qui l’administre.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrateur</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Pour l’instant, cette page ne fait qu’afficher l’état actuel.</translation>
    </message>
</context>
</TS>

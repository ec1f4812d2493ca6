<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>Cette version ne permet pas encore d’envoyer de rapports. En attendant, adressez-vous directement à votre administrateur.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>C’est ici qu’un problème est décrit et signalé à votre administrateur, avec les journaux de cet appareil.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Rapport de journal</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Vous voyez ici quelles fenêtres contextuelles sont bloquées sur cet appareil.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Fonctions</translation>
    </message>
</context>
</TS>

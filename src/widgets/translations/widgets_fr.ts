<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>Veuillez patienter …</translation>
    </message>
</context>
</TS>

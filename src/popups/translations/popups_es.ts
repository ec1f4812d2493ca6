<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Aquí se ve qué ventanas emergentes están bloqueadas en este dispositivo.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funciones</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>Espere, por favor…</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>Esta versión aún no permite enviar informes. Mientras tanto, avise directamente al administrador.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Desde aquí se describe un problema y se notifica al administrador, junto con los registros de este dispositivo.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Informe de registro</translation>
    </message>
</context>
</TS>

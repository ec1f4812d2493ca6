<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>Aquí se ve a qué organización pertenece este dispositivo y quién lo administra.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscripción</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrador</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Por ahora, esta página solo muestra el estado actual.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>La parte visible de la administración del dispositivo. Funciona junto con un servicio de este dispositivo.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>Acerca de Velmora RYX</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Direcciones de red</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Aquí se inician y se detienen los canales que su organización envía a esta pantalla.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Canales en directo</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Aquí se ve cómo llega este dispositivo al servicio de administración.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Por ahora, esta página solo muestra el estado actual.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>El aspecto de este programa y su idioma, y lo que su organización puede hacer en este dispositivo.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>Muy grande</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>settings_theme_system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Ajustes</translation>
    </message>
</context>
</TS>

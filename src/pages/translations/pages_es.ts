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
        <source>live_no_player</source>
        <translation>En este dispositivo no hay ningún programa que reproduzca direcciones «%1».</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>No se puede contactar con el servicio de este dispositivo: ahora no se pueden iniciar ni detener canales.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>Su organización no ofrece ningún canal en este momento.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>Los canales aparecerán aquí cuando este dispositivo esté inscrito.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>Esta lista es anterior a la pérdida de la conexión.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>La dirección de este canal no se puede reproducir. Avise a su administrador.</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Aquí se inician y se detienen los canales que su organización envía a esta pantalla.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>El canal se ha detenido. Si el reproductor sigue abierto, ciérrelo usted mismo.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Canales en directo</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>El servicio aún no ha indicado qué canales hay.</translation>
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

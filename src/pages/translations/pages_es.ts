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
        <source>act_clock</source>
        <translation>Se ajustó el formato de la hora.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>Se bloqueó la pantalla.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>Llegó un mensaje o un archivo del administrador.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>Se cambió lo que la organización puede hacer.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>El dispositivo dejó de estar gestionado por la organización.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>Se desbloqueó la pantalla.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>Se cambió el fondo de pantalla.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Ventanas de otros programas a las que se pidió cerrarse: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Nada hasta ahora.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Mostrar anteriores (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>Lo que se ha hecho aquí</translation>
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
        <source>may_control</source>
        <translation>%1 puede usar el ratón y el teclado de este dispositivo.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 puede ajustar el formato de la hora y el fondo de pantalla.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 puede averiguar dónde está este dispositivo.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 puede bloquear esta pantalla y los ajustes del sistema.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 puede mostrar aquí mensajes e imágenes y enviarle archivos, que nunca se abren solos.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>Ninguna organización gestiona este dispositivo: nadie puede hacer nada aquí mediante este programa.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 no puede usar el ratón ni el teclado de este dispositivo.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>Este programa no envía ninguno de sus archivos ni imágenes, salvo que usted mismo los envíe en un informe.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 no puede averiguar dónde está este dispositivo.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>Este programa no registra lo que usted escribe en otros programas.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 no puede ver lo que muestra esta pantalla.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 puede hacer que se cierren ventanas de otros programas que indiquen sus reglas, y se le informa de cuáles.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 también obtuvo «%2», que este programa no conoce.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 puede ver lo que muestra esta pantalla.</translation>
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
    <message>
        <source>transparency_title</source>
        <translation>Lo que esto significa</translation>
    </message>
</context>
</TS>

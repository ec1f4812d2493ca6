<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>header_no_organisation</source>
        <translation>Aún no administrado por una organización</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>Conexión con el servicio de administración: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>Inscribir este dispositivo</translation>
    </message>
    <message>
        <source>launcher_no_service</source>
        <translation>El servicio de este dispositivo está detenido. La inscripción podrá empezar en cuanto vuelva.</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>Con Velmora RYX, su organización cuida de este dispositivo: lo mantiene al día, ayuda cuando algo falla y lo protege cuando no hay nadie.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>Tenga a mano el código de organización de seis caracteres y el correo electrónico del administrador.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>Listo: arriba aparecerá «Conectado».</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>Inscriba este dispositivo. Tarda alrededor de un minuto.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>Bienvenido a Velmora RYX</translation>
    </message>
    <message>
        <source>live_vanished</source>
        <translation>El canal «%1», que se estaba reproduciendo, ya no se ofrece.</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>Inscripción</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>Canales en directo</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>No se puede acceder al servicio de administración</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>Su organización administra algunos ajustes</translation>
    </message>
    <message>
        <source>menu_mark_update</source>
        <translation>Hay novedades sobre una actualización</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>Póngase en contacto con el administrador de TI</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Notificar un problema</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>Se ha cambiado el canal de este dispositivo.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 «%2». %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>Conexión: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>No se puede conectar a</translation>
    </message>
</context>
</TS>

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
        <source>enrolment_sentence</source>
        <translation>Aquí se ve a qué organización pertenece este dispositivo y quién lo administra.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscripción</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Direcciones de red</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrador</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>fact_local_service</source>
        <translation>Servicio en este dispositivo</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>Servicio de administración</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>Organización</translation>
    </message>
    <message>
        <source>fact_service_not_reached</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>fact_service_reached</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>features_sentence</source>
        <translation>Aquí se ve qué ventanas emergentes están bloqueadas en este dispositivo.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funciones</translation>
    </message>
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
        <source>live_sentence</source>
        <translation>Aquí se inician y se detienen los canales que su organización envía a esta pantalla.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Canales en directo</translation>
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
        <source>menu_name</source>
        <translation>Menú principal</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Ajustes</translation>
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
        <source>room_note_state_only</source>
        <translation>Por ahora, esta página solo muestra el estado actual.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>El aspecto de este programa y su idioma. La elección se aplica de inmediato.</translation>
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
        <source>settings_title</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>No inscrito</translation>
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
    <message>
        <source>usb_bind_failed</source>
        <translation>Este dispositivo ya está inscrito. No se han usado los datos de la unidad USB.</translation>
    </message>
    <message>
        <source>usb_bind_success</source>
        <translation>Los datos de inscripción se han leído de la unidad USB.</translation>
    </message>
</context>
</TS>

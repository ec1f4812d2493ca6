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
        <source>device_location_title_v2</source>
        <translation>Localizar este dispositivo</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Direcciones de red</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Nombre del dispositivo</translation>
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
        <source>loading</source>
        <translation>Espere, por favor…</translation>
    </message>
    <message>
        <source>organisation_unnamed</source>
        <translation>Su organización</translation>
    </message>
    <message>
        <source>permission_held</source>
        <translation>%1 ha bloqueado este ajuste. Solo puede cambiarlo quien conozca los seis dígitos.</translation>
    </message>
    <message>
        <source>permission_held_opened</source>
        <translation>%1 ha bloqueado este ajuste. Puede cambiarse hasta que salga de esta página.</translation>
    </message>
    <message>
        <source>permission_no_service</source>
        <translation>No se puede contactar con el servicio de este dispositivo: ahora no se puede cambiar nada. Este es el último estado conocido.</translation>
    </message>
    <message>
        <source>permission_old</source>
        <translation>Este es el último estado conocido. El servicio aún no lo ha confirmado desde la nueva conexión.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>Los administradores ven lo que muestra esta pantalla.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>Ver la pantalla</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>Los administradores usan el ratón y el teclado de este dispositivo. Para ello deben ver la pantalla.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>Controlar a distancia</translation>
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
        <source>status_no_service</source>
        <translation>Servicio detenido</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>No inscrito</translation>
    </message>
    <message>
        <source>web_error_bad_answer</source>
        <translation>No se entendió la respuesta del servicio.</translation>
    </message>
    <message>
        <source>web_error_cancelled</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>web_error_file</source>
        <translation>El archivo no se pudo leer o cambió mientras tanto.</translation>
    </message>
    <message>
        <source>web_error_not_allowed</source>
        <translation>Esta dirección no está permitida.</translation>
    </message>
    <message>
        <source>web_error_not_configured</source>
        <translation>La conexión con el servicio no está bien configurada en este dispositivo.</translation>
    </message>
    <message>
        <source>web_error_not_trusted</source>
        <translation>El servidor no pudo probar su identidad.</translation>
    </message>
    <message>
        <source>web_error_other</source>
        <translation>Se ha producido un error.</translation>
    </message>
    <message>
        <source>web_error_refused</source>
        <translation>El servicio rechazó la solicitud.</translation>
    </message>
    <message>
        <source>web_error_timed_out</source>
        <translation>El servicio no respondió a tiempo.</translation>
    </message>
    <message>
        <source>web_error_too_large</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>web_error_unreachable</source>
        <translation>No se pudo acceder al servicio.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>Este dispositivo está inscrito.</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Localizar este dispositivo</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Cerrar</translation>
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
        <source>error_tip_uncheck_privacy</source>
        <translation>Lea y acepte primero el acuerdo.</translation>
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
        <source>list too long</source>
        <translation>La lista es demasiado larga: un dispositivo tiene como máximo %1 etiquetas.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>Cambio realizado</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Por ahora, esta página solo muestra el estado actual.</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>No se puede contactar con el servicio. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>¿Qué puede hacer su organización?</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>Cada cambio se aplica al momento.</translation>
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
        <source>tag_refused_blank</source>
        <translation>Escriba primero una etiqueta.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>El dispositivo ya tiene esta etiqueta.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>Una etiqueta tiene como máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>Quitar la etiqueta %1</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>El formulario contiene lo que dice el archivo %1. Revíselo, acepte el acuerdo e inscriba este dispositivo.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>Rellenado desde la unidad USB</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>Al archivo de inscripción de la unidad USB le falta el código o la cuenta.</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>El archivo de inscripción de la unidad USB no es un texto JSON en UTF-8.</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>El archivo de inscripción de la unidad USB es un enlace, no un archivo propio.</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>El archivo de inscripción de la unidad USB supera los %1 KiB.</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>No se puede leer el archivo de inscripción de la unidad USB.</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>El archivo de inscripción de la unidad USB no tiene el formato correcto.</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Otra etiqueta</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Añadir</translation>
    </message>
</context>
</TS>

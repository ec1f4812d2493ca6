<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>Sin conexión con su organización</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>El dispositivo no se ha inscrito. Revise los datos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>El código y el correo no corresponden.</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>No se puede acceder al servicio de administración. Revise la red.</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>Este dispositivo está inscrito.</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>No ha funcionado</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>El dispositivo se conecta por sí solo en cuanto puede. Si no, puede deberse a la red.</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>Ver la red</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>No se pudo acceder al servicio de este dispositivo. Mire la red o inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Aquí se ve a qué organización pertenece este dispositivo y quién lo administra.</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>Introduzca lo que le ha dado su organización. Después, ella administrará el dispositivo.</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>Este dispositivo está inscrito.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscripción</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>Error.</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>Lea y acepte primero el acuerdo.</translation>
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
        <source>permission_done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>Los ajustes bloqueados se cambian en la página «%1».</translation>
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
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>La &lt;b&gt;política de privacidad&lt;/b&gt; indica qué datos de este dispositivo recibe la organización.</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>El &lt;b&gt;acuerdo de usuario&lt;/b&gt; indica qué acepta al inscribir este dispositivo.</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>No se puede inscribir.</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>No se puede anular la inscripción.</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>En la unidad USB hay un archivo de inscripción, pero este dispositivo ya está inscrito.</translation>
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
        <source>view_register_admin_account</source>
        <translation>Correo electrónico del administrador</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>He leído ambos y estoy de acuerdo.</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>Por ejemplo, Aula 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>Principio del nombre</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>Final del nombre</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>Esta dirección de correo no es válida.</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>Rellene este campo.</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>El código tiene exactamente seis caracteres.</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>Nombre en dos campos</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>Nombre en un campo</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>Código de la organización</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>Seis caracteres</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>Acuerdo de usuario</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Otra etiqueta</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>Inscribir</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>Anular la inscripción</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Añadir</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>Su organización ha bloqueado los ajustes de este dispositivo. Introduzca la contraseña de seis dígitos para abrirlos.</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>Su administrador conoce la contraseña.</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1 bloqueados</translation>
    </message>
    <message>
        <source>lock_cannot_hold</source>
        <translation>Este escritorio no permite que una ventana quede sobre todas las demás, así que el bloqueo no puede mantenerse aquí.</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>Dígito %1 de 6</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>Borrar el último dígito</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>Introduzca la contraseña de seis dígitos</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>Esperando al servicio de este dispositivo. Los dígitos contarán en cuanto responda.</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>Bloqueo de pantalla</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>Introducir la contraseña</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 ha bloqueado esta pantalla hasta las %2.</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 ha bloqueado esta pantalla.</translation>
    </message>
    <message>
        <source>setting_permission_content</source>
        <translation>Su administrador ha bloqueado este ajuste. Introduzca la contraseña de seis dígitos para cambiarlo.</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>Este ajuste está bloqueado</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>Su organización dejará de cuidar de este dispositivo.</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>Esta contraseña es incorrecta.</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>Demasiadas contraseñas incorrectas. Cancele y vuelva dentro de un minuto.</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>Introduzca la contraseña de seis dígitos para continuar.</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>La conoce su administrador.</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
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
</context>
</TS>

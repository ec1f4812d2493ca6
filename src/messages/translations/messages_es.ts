<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>message_address_open</source>
        <translation>Abrir página</translation>
    </message>
    <message>
        <source>message_address_title</source>
        <translation>¿Abrir esta página en el navegador?</translation>
    </message>
    <message>
        <source>message_count</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>message_file_absent</source>
        <translation>El archivo no está en este dispositivo.</translation>
    </message>
    <message>
        <source>message_file_again</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>message_file_cancel</source>
        <translation>Cancelar descarga</translation>
    </message>
    <message>
        <source>message_file_disk_full</source>
        <translation>No hay espacio suficiente para el archivo.</translation>
    </message>
    <message>
        <source>message_file_loading</source>
        <translation>Descargando… %1 %</translation>
    </message>
    <message>
        <source>message_file_open</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>message_file_save_as</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>message_file_saved</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>message_file_show</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>message_file_unverified</source>
        <translation>El remitente no indicó ninguna suma de comprobación, por lo que no se pudo comprobar.</translation>
    </message>
    <message>
        <source>message_file_unwritable</source>
        <translation>No se pudo escribir el archivo.</translation>
    </message>
    <message>
        <source>message_file_wrong</source>
        <translation>Lo recibido no es el archivo enviado. No se ha conservado.</translation>
    </message>
    <message>
        <source>message_kept_open</source>
        <translation>Su administrador mantiene abierto este mensaje.</translation>
    </message>
    <message>
        <source>message_state_new</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>message_state_read</source>
        <translation>Leído</translation>
    </message>
    <message>
        <source>message_state_withdrawn</source>
        <translation>Retirado</translation>
    </message>
    <message>
        <source>message_title</source>
        <translation>Mensaje de su administrador</translation>
    </message>
    <message>
        <source>message_title_emergency</source>
        <translation>Emergencia</translation>
    </message>
    <message>
        <source>messages_none</source>
        <translation>No hay mensajes.</translation>
    </message>
    <message>
        <source>messages_title</source>
        <translation>Mensajes</translation>
    </message>
</context>
</TS>

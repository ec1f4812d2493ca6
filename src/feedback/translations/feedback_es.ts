<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>+ Add attachments (Optional)</source>
        <translation>+ Añadir archivos adjuntos (opcional)</translation>
    </message>
    <message>
        <source>attachment_cancel</source>
        <translation>Cancelar la subida de %1</translation>
    </message>
    <message>
        <source>attachment_choose</source>
        <translation>Elegir archivos adjuntos</translation>
    </message>
    <message>
        <source>attachment_empty</source>
        <translation>el archivo está vacío.</translation>
    </message>
    <message>
        <source>attachment_folder</source>
        <translation>es una carpeta.</translation>
    </message>
    <message>
        <source>attachment_note</source>
        <translation>Hasta %1 archivos de %2 cada uno. También puede soltar archivos aquí o pegar una imagen.</translation>
    </message>
    <message>
        <source>attachment_refused</source>
        <translation>«%1» no se ha adjuntado: %2</translation>
    </message>
    <message>
        <source>attachment_refused_together</source>
        <translation>No se han adjuntado: %1. El motivo de cada uno: %2</translation>
    </message>
    <message>
        <source>attachment_remove</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>attachment_retry</source>
        <translation>Volver a subir %1</translation>
    </message>
    <message>
        <source>attachment_too_large</source>
        <translation>supera los %1.</translation>
    </message>
    <message>
        <source>attachment_too_many</source>
        <translation>ya hay %1 archivos adjuntos.</translation>
    </message>
    <message>
        <source>attachment_twice</source>
        <translation>ya está adjunto.</translation>
    </message>
    <message>
        <source>attachment_unreadable</source>
        <translation>no se puede leer.</translation>
    </message>
    <message>
        <source>attachment_uploaded</source>
        <translation>Subido, %1</translation>
    </message>
    <message>
        <source>attachment_uploading</source>
        <translation>Subiendo, %1 % de %2</translation>
    </message>
    <message>
        <source>attachment_waiting</source>
        <translation>En espera, %1</translation>
    </message>
    <message>
        <source>feedback_cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>feedback_cancelled</source>
        <translation>El informe se ha cancelado.</translation>
    </message>
    <message>
        <source>feedback_close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>feedback_crash</source>
        <translation>El programa se cerró de forma inesperada el %1. El informe incluye un registro del punto en que se detuvo.</translation>
    </message>
    <message>
        <source>feedback_discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>feedback_failed_advice</source>
        <translation>No se ha perdido nada: inténtelo de nuevo o guarde el informe y entréguelo de otra forma.</translation>
    </message>
    <message>
        <source>feedback_failed_notice</source>
        <translation>Su informe no se ha enviado. La página «Comentarios» indica el motivo.</translation>
    </message>
    <message>
        <source>feedback_failed_pack</source>
        <translation>No se pudieron comprimir los registros de este dispositivo.</translation>
    </message>
    <message>
        <source>feedback_failed_title</source>
        <translation>El informe no se ha enviado</translation>
    </message>
    <message>
        <source>feedback_goes_on</source>
        <translation>El informe continúa. Se le avisará del resultado.</translation>
    </message>
    <message>
        <source>feedback_leave_content</source>
        <translation>No se ha enviado. Se perdería lo que ha escrito y adjuntado.</translation>
    </message>
    <message>
        <source>feedback_leave_title</source>
        <translation>¿Descartar este informe?</translation>
    </message>
    <message>
        <source>feedback_replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>feedback_replace_content</source>
        <translation>«%1» ya existe. Su contenido se perdería.</translation>
    </message>
    <message>
        <source>feedback_replace_title</source>
        <translation>¿Reemplazar este archivo?</translation>
    </message>
    <message>
        <source>feedback_retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>feedback_save</source>
        <translation>Guardar …</translation>
    </message>
    <message>
        <source>feedback_save_no_attachment</source>
        <translation>Un archivo adjunto ya no se puede leer.</translation>
    </message>
    <message>
        <source>feedback_save_no_place</source>
        <translation>No se puede escribir en ese lugar.</translation>
    </message>
    <message>
        <source>feedback_save_no_room</source>
        <translation>No hay espacio suficiente en ese lugar.</translation>
    </message>
    <message>
        <source>feedback_save_type</source>
        <translation>Archivo ZIP</translation>
    </message>
    <message>
        <source>feedback_saving</source>
        <translation>Guardando el informe …</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <translation>Enviando el informe …</translation>
    </message>
    <message>
        <source>feedback_sent_content</source>
        <translation>Gracias. El administrador ya lo ha recibido.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <translation>El informe se ha enviado</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Describa aquí un problema. El administrador recibe el informe junto con los registros de este dispositivo.</translation>
    </message>
    <message>
        <source>feedback_service_says</source>
        <translation>El servicio indica: %1</translation>
    </message>
    <message>
        <source>feedback_stay</source>
        <translation>Seguir escribiendo</translation>
    </message>
    <message>
        <source>feedback_unknown_advice</source>
        <translation>El servicio no lo ha confirmado, pero es posible que ya lo tenga; si lo intenta de nuevo, podría enviarse dos veces. También puede guardar el informe y entregarlo de otra forma.</translation>
    </message>
    <message>
        <source>feedback_unknown_title</source>
        <translation>No se sabe si el informe se ha enviado</translation>
    </message>
    <message>
        <source>feedback_uploads_pending</source>
        <translation>El informe se podrá enviar cuando se hayan subido los archivos adjuntos.</translation>
    </message>
    <message>
        <source>feedback_without_content</source>
        <translation>No se han subido:
%1</translation>
    </message>
    <message>
        <source>feedback_without_send</source>
        <translation>Enviar sin ellos</translation>
    </message>
    <message>
        <source>feedback_without_title</source>
        <translation>¿Enviar sin estos archivos adjuntos?</translation>
    </message>
    <message>
        <source>log_contract_email_hint</source>
        <translation>nombre@ejemplo.es</translation>
    </message>
    <message>
        <source>log_contract_email_title</source>
        <translation>Correo electrónico para preguntas (opcional)</translation>
    </message>
    <message>
        <source>log_description_hint</source>
        <translation>¿Qué ocurrió y qué hizo antes?</translation>
    </message>
    <message>
        <source>log_description_title</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>log_export_log_failed</source>
        <translation>No se pudo guardar el informe.</translation>
    </message>
    <message>
        <source>log_export_log_success</source>
        <translation>El informe se ha guardado.</translation>
    </message>
    <message>
        <source>log_files_content</source>
        <translation>Además de lo que escribe y adjunta, el informe lleva el nombre de este dispositivo (%1), su identificación ante el servicio y sus archivos de registro: %2, %3 en total.</translation>
    </message>
    <message>
        <source>log_files_end_only</source>
        <translation>Se muestran los últimos %1 del archivo; se envía completo.</translation>
    </message>
    <message>
        <source>log_files_no_text</source>
        <translation>Este archivo no contiene texto. Indica a los desarrolladores dónde se detuvo el programa.</translation>
    </message>
    <message>
        <source>log_files_none</source>
        <translation>No hay archivos de registro en este dispositivo.</translation>
    </message>
    <message>
        <source>log_files_open</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>log_files_open_name</source>
        <translation>Ver %1</translation>
    </message>
    <message>
        <source>log_files_title</source>
        <translation>Qué se enviará</translation>
    </message>
    <message>
        <source>log_files_unreadable</source>
        <translation>Este archivo no se puede leer. El informe lo omite.</translation>
    </message>
    <message>
        <source>log_report_title</source>
        <translation>Informe de registro</translation>
    </message>
    <message>
        <source>log_submit</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>log_submit_tip</source>
        <translation>Los registros de este dispositivo se envían con el informe.</translation>
    </message>
</context>
</TS>

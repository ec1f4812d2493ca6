<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Aquí se ve qué ventanas emergentes están bloqueadas en este dispositivo.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>file_publish_cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>popups_dropped</source>
        <translation>Esta regla ya no está en vigor</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>Bloqueo</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>Se pidió cerrar hoy</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>Hasta ahora no se ha pedido cerrar ninguna ventana.</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>Ventanas a las que se pidió cerrarse</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>El servicio no ha respondido. No ha cambiado nada.</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>Se pidió a una ventana emergente de %1 que se cerrara. Pulse aquí para ver el motivo.</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>Desactivado: se ha desactivado</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>Desactivado: este dispositivo no está inscrito</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>Mostrar anteriores (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>Activado, reglas en vigor: %1</translation>
    </message>
    <message>
        <source>popups_pick_busy</source>
        <translation>La última notificación aún no tiene respuesta. Vuelva a intentarlo dentro de un minuto.</translation>
    </message>
    <message>
        <source>popups_pick_list</source>
        <translation>Elegir de una lista</translation>
    </message>
    <message>
        <source>popups_pick_point</source>
        <translation>Señalarla en pantalla</translation>
    </message>
    <message>
        <source>popups_pick_sentence</source>
        <translation>Su administrador verá la imagen de la ventana y podrá hacer que se cierre en adelante.</translation>
    </message>
    <message>
        <source>popups_pick_title</source>
        <translation>Notificar una ventana emergente</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>Regla: clase de ventana %1, producto %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>Se pidió que se cerrara, sigue abierta</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>Cerrar ventanas emergentes no deseadas</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>Podrá solicitarse cuando el dispositivo esté inscrito y su servicio disponible.</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>Decide el servicio de su organización. El interruptor muestra lo que indica.</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>Se ha solicitado al servicio, que aún no ha respondido.</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1, %2 veces</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>El servicio aún no lo ha indicado</translation>
    </message>
    <message>
        <source>popups_windows_none</source>
        <translation>No hay ninguna ventana abierta que se pueda notificar.</translation>
    </message>
    <message>
        <source>popups_windows_title</source>
        <translation>¿Qué ventana?</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>Esto fue un error</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>Esto fue un error: %1, %2</translation>
    </message>
    <message>
        <source>report_click_pop_ups_block</source>
        <translation>Haga clic en la ventana emergente que desea notificar</translation>
    </message>
    <message>
        <source>str_pop_ups_</source>
        <translation>Ventana emergente de</translation>
    </message>
    <message>
        <source>str_report</source>
        <translation>Notificar</translation>
    </message>
    <message>
        <source>str_this_pop_ups_no_support</source>
        <translation>Esta ventana no se puede notificar</translation>
    </message>
</context>
</TS>

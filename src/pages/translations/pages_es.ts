<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_copy</source>
        <translation>Copiar todo</translation>
    </message>
    <message>
        <source>about_sentence</source>
        <translation>La parte visible de la administración del dispositivo. Funciona junto con un servicio de este dispositivo.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>Acerca de Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>Se ajustó el formato de la hora.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>Se bloqueó la pantalla.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>Llegó un mensaje o un archivo del administrador.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>Se cambió lo que la organización puede hacer.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>El dispositivo dejó de estar gestionado por la organización.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>Se desbloqueó la pantalla.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>Se cambió el fondo de pantalla.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Ventanas de otros programas a las que se pidió cerrarse: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Nada hasta ahora.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Mostrar anteriores (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>Lo que se ha hecho aquí</translation>
    </message>
    <message>
        <source>fact_account</source>
        <translation>Cuenta del administrador</translation>
    </message>
    <message>
        <source>fact_user</source>
        <translation>Usuario con sesión iniciada</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>holds_unknown</source>
        <translation>%1 también ha bloqueado «%2», que este programa no conoce.</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>En este dispositivo no hay ningún programa que reproduzca direcciones «%1».</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>No se puede contactar con el servicio de este dispositivo: ahora no se pueden iniciar ni detener canales.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>Su organización no ofrece ningún canal en este momento.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>Los canales aparecerán aquí cuando este dispositivo esté inscrito.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>Esta lista es anterior a la pérdida de la conexión.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>La dirección de este canal no se puede reproducir. Avise a su administrador.</translation>
    </message>
    <message>
        <source>licences_sentence</source>
        <translation>Este programa y lo que lo acompaña, cada uno con su propia licencia.</translation>
    </message>
    <message>
        <source>licences_title</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Aquí se inician y se detienen los canales que su organización envía a esta pantalla.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>El canal se ha detenido. Si el reproductor sigue abierto, ciérrelo usted mismo.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Canales en directo</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>Canal %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>El servicio aún no ha indicado qué canales hay.</translation>
    </message>
    <message>
        <source>may_control</source>
        <translation>%1 puede usar el ratón y el teclado de este dispositivo.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 puede ajustar el formato de la hora y el fondo de pantalla.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 puede averiguar dónde está este dispositivo.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 puede bloquear esta pantalla y los ajustes del sistema.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 puede mostrar aquí mensajes e imágenes y enviarle archivos, que nunca se abren solos.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>Ninguna organización gestiona este dispositivo: nadie puede hacer nada aquí mediante este programa.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 no puede usar el ratón ni el teclado de este dispositivo.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>Este programa no envía ninguno de sus archivos ni imágenes, salvo que usted mismo los envíe en un informe.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 no puede averiguar dónde está este dispositivo.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>Este programa no registra lo que usted escribe en otros programas.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 no puede ver lo que muestra esta pantalla.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 puede hacer que se cierren ventanas de otros programas que indiquen sus reglas, y se le informa de cuáles.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 también obtuvo «%2», que este programa no conoce.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 puede ver lo que muestra esta pantalla.</translation>
    </message>
    <message>
        <source>network_adapter_none</source>
        <translation>No hay ningún adaptador de red conectado.</translation>
    </message>
    <message>
        <source>network_adapter_none_advice</source>
        <translation>Conecte el cable de red o active la wifi.</translation>
    </message>
    <message>
        <source>network_adapter_up</source>
        <translation>En uso: %1.</translation>
    </message>
    <message>
        <source>network_address_found</source>
        <translation>Este dispositivo tiene %1.</translation>
    </message>
    <message>
        <source>network_address_none</source>
        <translation>La red no ha dado ninguna dirección a este dispositivo.</translation>
    </message>
    <message>
        <source>network_address_none_advice</source>
        <translation>Desconéctese de la red y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>network_cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>network_cancelled</source>
        <translation>No comprobado, porque se canceló la comprobación.</translation>
    </message>
    <message>
        <source>network_certificate_advice</source>
        <translation>Use otra red y no escriba contraseñas en esta; alguien podría estar escuchando.</translation>
    </message>
    <message>
        <source>network_certificate_bad</source>
        <translation>%1 no pudo demostrar quién es: %2</translation>
    </message>
    <message>
        <source>network_certificate_good</source>
        <translation>%1 ha demostrado quién es.</translation>
    </message>
    <message>
        <source>network_certificate_none</source>
        <translation>No comprobado: este servidor se usa sin cifrado.</translation>
    </message>
    <message>
        <source>network_certificate_unread</source>
        <translation>%1 no estableció una conexión segura.</translation>
    </message>
    <message>
        <source>network_check_failed</source>
        <translation>La comprobación falló en «%1».</translation>
    </message>
    <message>
        <source>network_check_no_server</source>
        <translation>En este dispositivo no hay indicado ningún servidor de la organización; solo se comprobó la salida de esta red.</translation>
    </message>
    <message>
        <source>network_check_passed</source>
        <translation>La comprobación no encontró ningún obstáculo.</translation>
    </message>
    <message>
        <source>network_clock_advice</source>
        <translation>Ponga el reloj en hora; con una hora errónea no hay conexión segura.</translation>
    </message>
    <message>
        <source>network_clock_right</source>
        <translation>El reloj coincide con el del servidor.</translation>
    </message>
    <message>
        <source>network_clock_unknown</source>
        <translation>No comprobado: el servidor no dio la hora.</translation>
    </message>
    <message>
        <source>network_clock_wrong</source>
        <translation>El reloj de este dispositivo difiere en %1 del reloj del servidor.</translation>
    </message>
    <message>
        <source>network_days</source>
        <translation>%1 días</translation>
    </message>
    <message>
        <source>network_gateway_found</source>
        <translation>La salida de esta red es %1.</translation>
    </message>
    <message>
        <source>network_gateway_none</source>
        <translation>No se conoce ninguna salida de esta red.</translation>
    </message>
    <message>
        <source>network_gateway_none_advice</source>
        <translation>Reinicie el enrutador o conéctese a otra red.</translation>
    </message>
    <message>
        <source>network_hours</source>
        <translation>%1 horas</translation>
    </message>
    <message>
        <source>network_link_other_way</source>
        <translation>Quizá use otro camino o aún no lo haya notado.</translation>
    </message>
    <message>
        <source>network_link_said</source>
        <translation>El servicio dice de la conexión con la organización: «%1».</translation>
    </message>
    <message>
        <source>network_link_unknown</source>
        <translation>No se sabe cómo está la conexión con la organización, porque el servicio de este dispositivo no está en marcha.</translation>
    </message>
    <message>
        <source>network_minutes</source>
        <translation>%1 minutos</translation>
    </message>
    <message>
        <source>network_name_advice</source>
        <translation>Compruebe qué servidor de nombres usa esta red o pruebe otra red.</translation>
    </message>
    <message>
        <source>network_name_by_proxy</source>
        <translation>El proxy busca los nombres.</translation>
    </message>
    <message>
        <source>network_name_found</source>
        <translation>%1 se conoce como %2.</translation>
    </message>
    <message>
        <source>network_name_not_found</source>
        <translation>No se encontró el nombre %1.</translation>
    </message>
    <message>
        <source>network_name_not_needed</source>
        <translation>El servidor está indicado por su dirección; no hay que buscar ningún nombre.</translation>
    </message>
    <message>
        <source>network_no_server</source>
        <translation>No comprobado: no hay ningún servidor indicado en este dispositivo.</translation>
    </message>
    <message>
        <source>network_pipe_advice</source>
        <translation>Reinicie este dispositivo.</translation>
    </message>
    <message>
        <source>network_pipe_down</source>
        <translation>El servicio de este dispositivo no está en marcha.</translation>
    </message>
    <message>
        <source>network_pipe_up</source>
        <translation>El servicio de este dispositivo está en marcha.</translation>
    </message>
    <message>
        <source>network_proxy_advice</source>
        <translation>Compruebe el proxy en los ajustes del sistema.</translation>
    </message>
    <message>
        <source>network_proxy_none</source>
        <translation>No se usa ningún proxy.</translation>
    </message>
    <message>
        <source>network_proxy_not_found</source>
        <translation>No se conoce el nombre del proxy %1.</translation>
    </message>
    <message>
        <source>network_proxy_not_reached</source>
        <translation>El proxy %1 no responde.</translation>
    </message>
    <message>
        <source>network_proxy_own_advice</source>
        <translation>Este proxy está en la configuración del programa; hay que corregirlo allí.</translation>
    </message>
    <message>
        <source>network_proxy_reached</source>
        <translation>Se llega al proxy %1.</translation>
    </message>
    <message>
        <source>network_seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Aquí se ve cómo llega este dispositivo al servicio de administración.</translation>
    </message>
    <message>
        <source>network_server_advice</source>
        <translation>Quizá el servidor no funcione o un cortafuegos lo impida. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>network_server_by_proxy</source>
        <translation>El proxy no deja que este dispositivo llegue a %1.</translation>
    </message>
    <message>
        <source>network_server_by_proxy_advice</source>
        <translation>El proxy necesita una regla para esta dirección o pide un nombre de usuario.</translation>
    </message>
    <message>
        <source>network_server_reached</source>
        <translation>%1 acepta conexiones.</translation>
    </message>
    <message>
        <source>network_server_refused</source>
        <translation>%1 rechaza las conexiones.</translation>
    </message>
    <message>
        <source>network_server_silent</source>
        <translation>%1 no responde.</translation>
    </message>
    <message>
        <source>network_sign_in_advice</source>
        <translation>Abra un navegador e inicie sesión en la red.</translation>
    </message>
    <message>
        <source>network_sign_in_needed</source>
        <translation>Esta red pide iniciar sesión primero, en %1.</translation>
    </message>
    <message>
        <source>network_sign_in_none</source>
        <translation>Ninguna página de inicio de sesión lo impide.</translation>
    </message>
    <message>
        <source>network_skipped</source>
        <translation>No comprobado, porque falló un paso anterior.</translation>
    </message>
    <message>
        <source>network_start</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>network_state_failed</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>network_state_not_checked</source>
        <translation>No comprobado</translation>
    </message>
    <message>
        <source>network_state_passed</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>network_state_running</source>
        <translation>Comprobando …</translation>
    </message>
    <message>
        <source>network_state_waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>network_step_adapter</source>
        <translation>Adaptador de red</translation>
    </message>
    <message>
        <source>network_step_address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>network_step_certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>network_step_clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>network_step_gateway</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message>
        <source>network_step_name</source>
        <translation>Resolución de nombres</translation>
    </message>
    <message>
        <source>network_step_pipe</source>
        <translation>Servicio de este dispositivo</translation>
    </message>
    <message>
        <source>network_step_proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>network_step_server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>network_step_sign_in</source>
        <translation>Página de inicio de sesión</translation>
    </message>
    <message>
        <source>network_tell_administrator</source>
        <translation>Si no ayuda, avise al administrador de su organización.</translation>
    </message>
    <message>
        <source>network_tell_support</source>
        <translation>Si no ayuda, avise a %1.</translation>
    </message>
    <message>
        <source>network_timed_out</source>
        <translation>No hubo resultado en cinco segundos.</translation>
    </message>
    <message>
        <source>network_timed_out_advice</source>
        <translation>Quizá la red esté sobrecargada. Compruebe de nuevo.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>network_verdict_cancelled</source>
        <translation>Se canceló la comprobación.</translation>
    </message>
    <message>
        <source>network_verdict_running</source>
        <translation>Se comprueba el camino a los servidores de su organización …</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>settings_not_kept</source>
        <translation>No se pudo guardar su elección; vale hasta que termine el programa.</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>El aspecto de este programa y su idioma, y lo que su organización puede hacer en este dispositivo.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>Muy grande</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>Tamaño del texto</translation>
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
        <source>settings_theme_system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>transparency_title</source>
        <translation>Lo que esto significa</translation>
    </message>
    <message>
        <source>support_mail</source>
        <translation>Escribir un correo</translation>
    </message>
    <message>
        <source>support_nobody</source>
        <translation>No hay ningún contacto indicado en este dispositivo. Pregunte al administrador de su organización.</translation>
    </message>
    <message>
        <source>support_page</source>
        <translation>Abrir la página web</translation>
    </message>
    <message>
        <source>support_title</source>
        <translation>Asistencia</translation>
    </message>
    <message>
        <source>support_trace_hint</source>
        <translation>El registro de la conexión muestra a quien le ayuda qué mensajes se han intercambiado, sin su contenido.</translation>
    </message>
    <message>
        <source>text_copied</source>
        <translation>Copiado.</translation>
    </message>
    <message>
        <source>text_copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>text_exists</source>
        <translation>«%1» ya existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>text_not_saved</source>
        <translation>No se pudo guardar «%1».</translation>
    </message>
    <message>
        <source>text_save</source>
        <translation>Guardar …</translation>
    </message>
    <message>
        <source>text_save_type</source>
        <translation>Archivo de texto</translation>
    </message>
    <message>
        <source>text_saved</source>
        <translation>Guardado como «%1».</translation>
    </message>
    <message>
        <source>trace_sentence</source>
        <translation>Los últimos 500 mensajes entre este programa y el servicio de este dispositivo: hora, sentido, clave, nombre y tamaño. Su contenido no se guarda.</translation>
    </message>
    <message>
        <source>trace_title</source>
        <translation>Registro de la conexión</translation>
    </message>
    <message>
        <source>update_available</source>
        <translation>La versión %1 está disponible.</translation>
    </message>
    <message>
        <source>update_available_size</source>
        <translation>La versión %1 está disponible (%2).</translation>
    </message>
    <message>
        <source>update_bytes</source>
        <translation>Descargando: %1 hasta ahora</translation>
    </message>
    <message>
        <source>update_check</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>update_failed</source>
        <translation>La actualización ha fallado.</translation>
    </message>
    <message>
        <source>update_forced</source>
        <translation>Su organización quiere que se instale.</translation>
    </message>
    <message>
        <source>update_later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>update_no_answer</source>
        <translation>Se pidió la actualización al servicio y no responde desde hace un minuto.</translation>
    </message>
    <message>
        <source>update_no_service</source>
        <translation>El servicio de este dispositivo no está en marcha; solo él puede buscar actualizaciones.</translation>
    </message>
    <message>
        <source>update_now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>update_old</source>
        <translation>La conexión con el servicio se cortó desde entonces; esto es lo que dijo a las %1.</translation>
    </message>
    <message>
        <source>update_percent</source>
        <translation>Descargando: %1 %</translation>
    </message>
    <message>
        <source>update_ready</source>
        <translation>La actualización está descargada. El servicio la instala.</translation>
    </message>
    <message>
        <source>update_requested</source>
        <translation>Se pidió la actualización al servicio. Esperando …</translation>
    </message>
    <message>
        <source>update_retry</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>update_silent</source>
        <translation>El servicio la instala por sí mismo; no hay nada que hacer.</translation>
    </message>
    <message>
        <source>update_stalled</source>
        <translation>No se ha movido nada desde hace un minuto.</translation>
    </message>
    <message>
        <source>update_title</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>update_told</source>
        <translation>A fecha de %1</translation>
    </message>
    <message>
        <source>update_unknown</source>
        <translation>Esperando al servicio …</translation>
    </message>
    <message>
        <source>update_up_to_date</source>
        <translation>Este programa está actualizado.</translation>
    </message>
</context>
</TS>

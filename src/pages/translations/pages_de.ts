<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_copy</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>about_sentence</source>
        <translation>Der sichtbare Teil der Geräteverwaltung. Er arbeitet mit einem Dienst auf diesem Gerät zusammen.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>Über Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>Das Uhrzeitformat wurde eingestellt.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>Der Bildschirm wurde gesperrt.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>Eine Nachricht oder Datei kam von der Administration.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>Es wurde geändert, was die Organisation darf.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>Das Gerät wird nicht mehr von der Organisation verwaltet.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>Der Bildschirm wurde entsperrt.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>Das Hintergrundbild wurde eingestellt.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Fenster anderer Programme wurden zum Schließen aufgefordert: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Bisher nichts.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Ältere anzeigen (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>Was hier geschehen ist</translation>
    </message>
    <message>
        <source>fact_account</source>
        <translation>Konto des Administrators</translation>
    </message>
    <message>
        <source>fact_user</source>
        <translation>Angemeldeter Benutzer</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>holds_unknown</source>
        <translation>%1 hat auch „%2“ gesperrt, was dieses Programm nicht kennt.</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>Auf diesem Gerät gibt es kein Programm, das „%1“-Adressen abspielt.</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>Der Dienst auf diesem Gerät ist nicht erreichbar: Jetzt lassen sich keine Kanäle starten oder beenden.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>Ihre Organisation bietet zurzeit keine Kanäle an.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>Sobald das Gerät registriert ist, erscheinen hier Kanäle.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>Diese Liste stammt aus der Zeit vor der Unterbrechung der Verbindung.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>Die Adresse dieses Kanals lässt sich nicht abspielen. Sagen Sie es der Administration.</translation>
    </message>
    <message>
        <source>licences_sentence</source>
        <translation>Dieses Programm und was dazugehört, jedes unter seiner eigenen Lizenz.</translation>
    </message>
    <message>
        <source>licences_title</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Hier starten und beenden Sie die Kanäle, die Ihre Organisation an dieses Display sendet.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>Der Kanal ist beendet. Ist das Abspielprogramm noch offen, schließen Sie es selbst.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Live-Kanäle</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>Der Dienst hat noch nicht gemeldet, welche Kanäle es gibt.</translation>
    </message>
    <message>
        <source>may_control</source>
        <translation>%1 darf Maus und Tastatur dieses Geräts bedienen.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 darf Uhrzeitformat und Hintergrundbild einstellen.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 darf feststellen, wo dieses Gerät ist.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 darf diesen Bildschirm und die Systemeinstellungen sperren.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 darf hier Nachrichten und Bilder zeigen und Dateien schicken, von denen sich keine von selbst öffnet.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>Keine Organisation verwaltet dieses Gerät: Über dieses Programm darf hier niemand etwas tun.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 darf Maus und Tastatur dieses Geräts nicht bedienen.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>Dieses Programm sendet keine Ihrer Dateien und Bilder, außer Sie senden sie selbst in einem Bericht.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 darf nicht feststellen, wo dieses Gerät ist.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>Dieses Programm zeichnet nicht auf, was Sie in anderen Programmen tippen.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 darf nicht sehen, was auf diesem Bildschirm steht.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 darf Fenster anderer Programme schließen lassen, die ihre Regeln nennen, und erfährt, welche.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 wurde auch „%2“ gewährt, was dieses Programm nicht kennt.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 darf sehen, was auf diesem Bildschirm steht.</translation>
    </message>
    <message>
        <source>network_adapter_none</source>
        <translation>Kein Netzwerkadapter ist verbunden.</translation>
    </message>
    <message>
        <source>network_adapter_none_advice</source>
        <translation>Stecken Sie das Netzwerkkabel ein, oder schalten Sie WLAN ein.</translation>
    </message>
    <message>
        <source>network_adapter_up</source>
        <translation>In Betrieb: %1.</translation>
    </message>
    <message>
        <source>network_address_found</source>
        <translation>Dieses Gerät hat %1.</translation>
    </message>
    <message>
        <source>network_address_none</source>
        <translation>Das Netzwerk hat diesem Gerät keine Adresse gegeben.</translation>
    </message>
    <message>
        <source>network_address_none_advice</source>
        <translation>Trennen Sie das Netzwerk, und verbinden Sie es wieder.</translation>
    </message>
    <message>
        <source>network_cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>network_cancelled</source>
        <translation>Nicht geprüft, weil die Prüfung abgebrochen wurde.</translation>
    </message>
    <message>
        <source>network_certificate_advice</source>
        <translation>Benutzen Sie ein anderes Netzwerk, und geben Sie in diesem keine Passwörter ein; vielleicht hört jemand mit.</translation>
    </message>
    <message>
        <source>network_certificate_bad</source>
        <translation>%1 konnte sich nicht ausweisen: %2</translation>
    </message>
    <message>
        <source>network_certificate_good</source>
        <translation>%1 hat sich ausgewiesen.</translation>
    </message>
    <message>
        <source>network_certificate_none</source>
        <translation>Nicht geprüft: Dieser Server wird ohne Verschlüsselung benutzt.</translation>
    </message>
    <message>
        <source>network_certificate_unread</source>
        <translation>%1 hat keine sichere Verbindung aufgebaut.</translation>
    </message>
    <message>
        <source>network_check_failed</source>
        <translation>Die Prüfung ist bei „%1“ fehlgeschlagen.</translation>
    </message>
    <message>
        <source>network_check_no_server</source>
        <translation>Auf diesem Gerät ist kein Server der Organisation eingetragen; nur der Weg aus diesem Netzwerk wurde geprüft.</translation>
    </message>
    <message>
        <source>network_check_passed</source>
        <translation>Die Prüfung hat kein Hindernis gefunden.</translation>
    </message>
    <message>
        <source>network_clock_advice</source>
        <translation>Stellen Sie die Uhr; mit einer falschen kommt keine sichere Verbindung zustande.</translation>
    </message>
    <message>
        <source>network_clock_right</source>
        <translation>Die Uhr stimmt mit der des Servers überein.</translation>
    </message>
    <message>
        <source>network_clock_unknown</source>
        <translation>Nicht geprüft: Der Server hat keine Zeit genannt.</translation>
    </message>
    <message>
        <source>network_clock_wrong</source>
        <translation>Die Uhr dieses Geräts weicht um %1 von der des Servers ab.</translation>
    </message>
    <message>
        <source>network_days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>network_gateway_found</source>
        <translation>Der Weg aus diesem Netzwerk ist %1.</translation>
    </message>
    <message>
        <source>network_gateway_none</source>
        <translation>Es ist kein Weg aus diesem Netzwerk bekannt.</translation>
    </message>
    <message>
        <source>network_gateway_none_advice</source>
        <translation>Starten Sie den Router neu, oder verbinden Sie ein anderes Netzwerk.</translation>
    </message>
    <message>
        <source>network_hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>network_link_other_way</source>
        <translation>Er benutzt vielleicht einen anderen Weg oder hat es noch nicht bemerkt.</translation>
    </message>
    <message>
        <source>network_link_said</source>
        <translation>Der Dienst sagt zur Verbindung mit der Organisation: „%1“.</translation>
    </message>
    <message>
        <source>network_link_unknown</source>
        <translation>Wie die Verbindung zur Organisation steht, ist nicht bekannt, weil der Dienst auf diesem Gerät nicht läuft.</translation>
    </message>
    <message>
        <source>network_minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>network_name_advice</source>
        <translation>Prüfen Sie, welchen Namensserver dieses Netzwerk benutzt, oder versuchen Sie ein anderes Netzwerk.</translation>
    </message>
    <message>
        <source>network_name_by_proxy</source>
        <translation>Der Proxy schlägt Namen nach.</translation>
    </message>
    <message>
        <source>network_name_found</source>
        <translation>%1 ist bekannt als %2.</translation>
    </message>
    <message>
        <source>network_name_not_found</source>
        <translation>Der Name %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>network_name_not_needed</source>
        <translation>Der Server ist mit seiner Adresse eingetragen; kein Name ist nachzuschlagen.</translation>
    </message>
    <message>
        <source>network_no_server</source>
        <translation>Nicht geprüft: Auf diesem Gerät ist kein Server eingetragen.</translation>
    </message>
    <message>
        <source>network_pipe_advice</source>
        <translation>Starten Sie dieses Gerät neu.</translation>
    </message>
    <message>
        <source>network_pipe_down</source>
        <translation>Der Dienst auf diesem Gerät läuft nicht.</translation>
    </message>
    <message>
        <source>network_pipe_up</source>
        <translation>Der Dienst auf diesem Gerät läuft.</translation>
    </message>
    <message>
        <source>network_proxy_advice</source>
        <translation>Prüfen Sie den Proxy in den Einstellungen des Systems.</translation>
    </message>
    <message>
        <source>network_proxy_none</source>
        <translation>Es wird kein Proxy benutzt.</translation>
    </message>
    <message>
        <source>network_proxy_not_found</source>
        <translation>Der Name des Proxys %1 ist nicht bekannt.</translation>
    </message>
    <message>
        <source>network_proxy_not_reached</source>
        <translation>Der Proxy %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>network_proxy_own_advice</source>
        <translation>Dieser Proxy steht in der Konfiguration des Programms und muss dort berichtigt werden.</translation>
    </message>
    <message>
        <source>network_proxy_reached</source>
        <translation>Der Proxy %1 ist erreichbar.</translation>
    </message>
    <message>
        <source>network_seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Hier sehen Sie, wie dieses Gerät den Verwaltungsdienst erreicht.</translation>
    </message>
    <message>
        <source>network_server_advice</source>
        <translation>Der Server ist vielleicht nicht in Betrieb, oder eine Firewall ist im Weg. Versuchen Sie es später wieder.</translation>
    </message>
    <message>
        <source>network_server_by_proxy</source>
        <translation>Der Proxy lässt dieses Gerät nicht zu %1 durch.</translation>
    </message>
    <message>
        <source>network_server_by_proxy_advice</source>
        <translation>Der Proxy braucht eine Regel für diese Adresse oder verlangt einen Benutzernamen.</translation>
    </message>
    <message>
        <source>network_server_reached</source>
        <translation>%1 nimmt Verbindungen an.</translation>
    </message>
    <message>
        <source>network_server_refused</source>
        <translation>%1 lehnt Verbindungen ab.</translation>
    </message>
    <message>
        <source>network_server_silent</source>
        <translation>%1 antwortet nicht.</translation>
    </message>
    <message>
        <source>network_sign_in_advice</source>
        <translation>Öffnen Sie einen Browser, und melden Sie sich beim Netzwerk an.</translation>
    </message>
    <message>
        <source>network_sign_in_needed</source>
        <translation>Dieses Netzwerk verlangt zuerst eine Anmeldung, bei %1.</translation>
    </message>
    <message>
        <source>network_sign_in_none</source>
        <translation>Keine Anmeldeseite ist im Weg.</translation>
    </message>
    <message>
        <source>network_skipped</source>
        <translation>Nicht geprüft, weil ein früherer Schritt fehlgeschlagen ist.</translation>
    </message>
    <message>
        <source>network_start</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>network_state_failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>network_state_not_checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>network_state_passed</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>network_state_running</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>network_state_waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>network_step_adapter</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <source>network_step_address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>network_step_certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>network_step_clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>network_step_gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>network_step_name</source>
        <translation>Namensauflösung</translation>
    </message>
    <message>
        <source>network_step_pipe</source>
        <translation>Dienst auf diesem Gerät</translation>
    </message>
    <message>
        <source>network_step_proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>network_step_server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>network_step_sign_in</source>
        <translation>Anmeldeseite</translation>
    </message>
    <message>
        <source>network_tell_administrator</source>
        <translation>Hilft das nicht, sagen Sie es dem Administrator Ihrer Organisation.</translation>
    </message>
    <message>
        <source>network_tell_support</source>
        <translation>Hilft das nicht, sagen Sie es: %1.</translation>
    </message>
    <message>
        <source>network_timed_out</source>
        <translation>Binnen fünf Sekunden gab es kein Ergebnis.</translation>
    </message>
    <message>
        <source>network_timed_out_advice</source>
        <translation>Das Netzwerk ist vielleicht überlastet. Prüfen Sie erneut.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>network_verdict_cancelled</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>network_verdict_running</source>
        <translation>Der Weg zu den Servern Ihrer Organisation wird geprüft …</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>settings_not_kept</source>
        <translation>Ihre Wahl konnte nicht gespeichert werden; sie gilt, bis das Programm endet.</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>Wie dieses Programm aussieht, welche Sprache es spricht, und was Ihre Organisation auf diesem Gerät darf.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>Sehr groß</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>settings_theme_system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>transparency_title</source>
        <translation>Was das bedeutet</translation>
    </message>
    <message>
        <source>support_mail</source>
        <translation>E-Mail schreiben</translation>
    </message>
    <message>
        <source>support_nobody</source>
        <translation>Auf diesem Gerät ist niemand eingetragen. Fragen Sie den Administrator Ihrer Organisation.</translation>
    </message>
    <message>
        <source>support_page</source>
        <translation>Webseite öffnen</translation>
    </message>
    <message>
        <source>support_title</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>support_trace_hint</source>
        <translation>Das Verbindungsprotokoll zeigt dem, der Ihnen hilft, welche Nachrichten hin- und hergingen, ohne deren Inhalt.</translation>
    </message>
    <message>
        <source>text_copied</source>
        <translation>Kopiert.</translation>
    </message>
    <message>
        <source>text_copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>text_exists</source>
        <translation>„%1“ gibt es schon. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>text_not_saved</source>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>text_save</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>text_save_type</source>
        <translation>Textdatei</translation>
    </message>
    <message>
        <source>text_saved</source>
        <translation>Gespeichert als „%1“.</translation>
    </message>
    <message>
        <source>trace_sentence</source>
        <translation>Die letzten 500 Nachrichten zwischen diesem Programm und dem Dienst auf diesem Gerät: Zeit, Richtung, Schlüssel, Name und Größe. Was darin stand, wird nicht aufbewahrt.</translation>
    </message>
    <message>
        <source>trace_title</source>
        <translation>Verbindungsprotokoll</translation>
    </message>
    <message>
        <source>update_available</source>
        <translation>Version %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>update_available_size</source>
        <translation>Version %1 ist verfügbar (%2).</translation>
    </message>
    <message>
        <source>update_bytes</source>
        <translation>Wird heruntergeladen: bisher %1</translation>
    </message>
    <message>
        <source>update_check</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>update_failed</source>
        <translation>Die Aktualisierung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>update_forced</source>
        <translation>Ihre Organisation möchte, dass sie installiert wird.</translation>
    </message>
    <message>
        <source>update_later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>update_no_answer</source>
        <translation>Der Dienst wurde um die Aktualisierung gebeten und hat seit einer Minute nicht geantwortet.</translation>
    </message>
    <message>
        <source>update_no_service</source>
        <translation>Der Dienst auf diesem Gerät läuft nicht; nur er kann nach Aktualisierungen suchen.</translation>
    </message>
    <message>
        <source>update_now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>update_old</source>
        <translation>Die Verbindung zum Dienst ist seither abgebrochen; das hat er um %1 gesagt.</translation>
    </message>
    <message>
        <source>update_percent</source>
        <translation>Wird heruntergeladen: %1 %</translation>
    </message>
    <message>
        <source>update_ready</source>
        <translation>Die Aktualisierung ist heruntergeladen. Der Dienst installiert sie.</translation>
    </message>
    <message>
        <source>update_requested</source>
        <translation>Der Dienst wurde um die Aktualisierung gebeten. Es wird auf ihn gewartet …</translation>
    </message>
    <message>
        <source>update_retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>update_silent</source>
        <translation>Der Dienst installiert sie selbst; es ist nichts zu tun.</translation>
    </message>
    <message>
        <source>update_stalled</source>
        <translation>Seit einer Minute bewegt sich nichts.</translation>
    </message>
    <message>
        <source>update_title</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>update_told</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>update_unknown</source>
        <translation>Es wird auf den Dienst gewartet …</translation>
    </message>
    <message>
        <source>update_up_to_date</source>
        <translation>Dieses Programm ist aktuell.</translation>
    </message>
</context>
</TS>

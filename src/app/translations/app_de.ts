<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>Der sichtbare Teil der Geräteverwaltung. Er arbeitet mit einem Dienst auf diesem Gerät zusammen.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>Über Velmora RYX</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Hier sehen Sie, zu welcher Organisation dieses Gerät gehört und wer es verwaltet.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Netzwerkadressen</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administration</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>fact_local_service</source>
        <translation>Dienst auf diesem Gerät</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>Verwaltungsdienst</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>Keine Angabe</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>fact_service_not_reached</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <source>fact_service_reached</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>features_sentence</source>
        <translation>Hier sehen Sie, welche Pop-up-Fenster auf diesem Gerät blockiert werden.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>feedback_note</source>
        <translation>Mit dieser Version lassen sich noch keine Berichte senden. Bitte wenden Sie sich bis dahin direkt an Ihre Administration.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Von hier aus beschreiben und melden Sie Ihrer Administration ein Problem, zusammen mit den Protokollen dieses Geräts.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Protokollbericht</translation>
    </message>
    <message>
        <source>header_no_organisation</source>
        <translation>Noch von keiner Organisation verwaltet</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>Verbindung zum Verwaltungsdienst: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>Dieses Gerät registrieren</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>Mit Velmora RYX kümmert sich Ihre Organisation um dieses Gerät: Sie hält es aktuell, hilft bei Problemen und schützt es, wenn niemand da ist.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>Halten Sie den sechsstelligen Organisationscode und die E-Mail-Adresse der Administration bereit.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>Fertig: Oben steht dann „Verbunden“.</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>Registrieren Sie dieses Gerät. Das dauert etwa eine Minute.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>Willkommen bei Velmora RYX</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Hier starten und beenden Sie die Kanäle, die Ihre Organisation an dieses Display sendet.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Live-Kanäle</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>Live-Kanäle</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>Der Verwaltungsdienst ist nicht erreichbar</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>Einige Einstellungen verwaltet Ihre Organisation</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>Hauptmenü</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Hier sehen Sie, wie dieses Gerät den Verwaltungsdienst erreicht.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>Bitte wenden Sie sich an die IT-Administration</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>room_note_state_only</source>
        <translation>Vorerst zeigt diese Seite nur den Stand der Dinge.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>Wie dieses Programm aussieht und welche Sprache es spricht. Die Auswahl gilt sofort.</translation>
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
        <source>settings_title</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>Verbindet …</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Nicht registriert</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>Der Kanal dieses Geräts wurde gewechselt.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 „%2“. %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>Verbindung: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>Verbindung nicht möglich mit</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>Dieses Gerät ist bereits registriert. Die Daten auf dem USB-Laufwerk wurden nicht verwendet.</translation>
    </message>
    <message>
        <source>usb_bind_success</source>
        <translation>Die Registrierungsdaten wurden vom USB-Laufwerk gelesen.</translation>
    </message>
</context>
</TS>

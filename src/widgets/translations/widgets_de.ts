<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Dieses Gerät orten</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Netzwerkadressen</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Gerätename</translation>
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
        <source>loading</source>
        <translation>Bitte warten …</translation>
    </message>
    <message>
        <source>organisation_unnamed</source>
        <translation>Ihre Organisation</translation>
    </message>
    <message>
        <source>permission_held</source>
        <translation>%1 hat diese Einstellung gesperrt. Ändern darf sie, wer die sechs Ziffern kennt.</translation>
    </message>
    <message>
        <source>permission_held_opened</source>
        <translation>%1 hat diese Einstellung gesperrt. Sie lässt sich ändern, bis Sie diese Seite verlassen.</translation>
    </message>
    <message>
        <source>permission_no_service</source>
        <translation>Der Dienst auf diesem Gerät ist nicht erreichbar: Jetzt lässt sich nichts ändern. Dies ist der letzte bekannte Stand.</translation>
    </message>
    <message>
        <source>permission_old</source>
        <translation>Dies ist der letzte bekannte Stand. Der Dienst hat ihn seit der neuen Verbindung noch nicht bestätigt.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>Die Administration sieht, was auf diesem Bildschirm steht.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>Bildschirm ansehen</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>Die Administration bedient Maus und Tastatur dieses Geräts. Dazu muss sie den Bildschirm sehen.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>Fernsteuerung</translation>
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
        <source>status_no_service</source>
        <translation>Dienst läuft nicht</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Nicht registriert</translation>
    </message>
    <message>
        <source>web_error_bad_answer</source>
        <translation>Die Antwort des Dienstes war unverständlich.</translation>
    </message>
    <message>
        <source>web_error_cancelled</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>web_error_file</source>
        <translation>Die Datei ließ sich nicht lesen oder hat sich währenddessen geändert.</translation>
    </message>
    <message>
        <source>web_error_not_allowed</source>
        <translation>Diese Adresse ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>web_error_not_configured</source>
        <translation>Die Verbindung zum Dienst ist auf diesem Gerät nicht richtig eingerichtet.</translation>
    </message>
    <message>
        <source>web_error_not_trusted</source>
        <translation>Der Server konnte sich nicht ausweisen.</translation>
    </message>
    <message>
        <source>web_error_other</source>
        <translation>Etwas ist schiefgegangen.</translation>
    </message>
    <message>
        <source>web_error_refused</source>
        <translation>Der Dienst hat die Anfrage abgelehnt.</translation>
    </message>
    <message>
        <source>web_error_timed_out</source>
        <translation>Der Dienst hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>web_error_too_large</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>web_error_unreachable</source>
        <translation>Der Dienst ist nicht erreichbar.</translation>
    </message>
</context>
</TS>

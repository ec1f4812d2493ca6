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

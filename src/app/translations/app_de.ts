<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
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
        <source>launcher_no_service</source>
        <translation>Der Dienst auf diesem Gerät läuft nicht. Die Registrierung kann beginnen, sobald er wieder da ist.</translation>
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
        <source>live_vanished</source>
        <translation>Der Kanal „%1“, der gerade lief, wird nicht mehr angeboten.</translation>
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
        <source>menu_mark_update</source>
        <translation>Es gibt Neues zu einer Aktualisierung</translation>
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
</context>
</TS>

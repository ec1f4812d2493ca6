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
        <source>fact_addresses</source>
        <translation>Netzwerkadressen</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
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
        <source>network_sentence</source>
        <translation>Hier sehen Sie, wie dieses Gerät den Verwaltungsdienst erreicht.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Sprache</translation>
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
</context>
</TS>

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
        <source>live_sentence</source>
        <translation>Hier starten und beenden Sie die Kanäle, die Ihre Organisation an dieses Display sendet.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Live-Kanäle</translation>
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
        <source>page_note_state_only</source>
        <translation>Vorerst zeigt diese Seite nur den Stand der Dinge.</translation>
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

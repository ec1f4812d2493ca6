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
    <message>
        <source>transparency_title</source>
        <translation>Was das bedeutet</translation>
    </message>
</context>
</TS>

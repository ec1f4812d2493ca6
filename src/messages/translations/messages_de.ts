<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>message_address_open</source>
        <translation>Seite öffnen</translation>
    </message>
    <message>
        <source>message_address_title</source>
        <translation>Diese Seite im Browser öffnen?</translation>
    </message>
    <message>
        <source>message_count</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>message_file_absent</source>
        <translation>Die Datei ist nicht auf diesem Gerät.</translation>
    </message>
    <message>
        <source>message_file_again</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>message_file_cancel</source>
        <translation>Download abbrechen</translation>
    </message>
    <message>
        <source>message_file_disk_full</source>
        <translation>Für die Datei ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>message_file_loading</source>
        <translation>Wird heruntergeladen … %1 %</translation>
    </message>
    <message>
        <source>message_file_open</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>message_file_save_as</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>message_file_saved</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>message_file_show</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>message_file_unverified</source>
        <translation>Der Absender hat keine Prüfsumme angegeben; sie ist daher ungeprüft.</translation>
    </message>
    <message>
        <source>message_file_unwritable</source>
        <translation>Die Datei ließ sich nicht schreiben.</translation>
    </message>
    <message>
        <source>message_file_wrong</source>
        <translation>Angekommen ist nicht die gesendete Datei. Sie wurde verworfen.</translation>
    </message>
    <message>
        <source>message_kept_open</source>
        <translation>Die Administration lässt diese Nachricht geöffnet.</translation>
    </message>
    <message>
        <source>message_state_new</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>message_state_read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>message_state_withdrawn</source>
        <translation>Zurückgezogen</translation>
    </message>
    <message>
        <source>message_title</source>
        <translation>Nachricht der Administration</translation>
    </message>
    <message>
        <source>message_title_emergency</source>
        <translation>Notfall</translation>
    </message>
    <message>
        <source>messages_none</source>
        <translation>Es gibt keine Nachrichten.</translation>
    </message>
    <message>
        <source>messages_title</source>
        <translation>Nachrichten</translation>
    </message>
</context>
</TS>

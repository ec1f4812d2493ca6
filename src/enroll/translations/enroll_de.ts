<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>Dieses Gerät ist registriert.</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Dieses Gerät orten</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Schließen</translation>
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
        <source>error_tip_uncheck_privacy</source>
        <translation>Bitte lesen und akzeptieren Sie zuerst die Vereinbarung.</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administration</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>Die Liste ist zu lang: Ein Gerät hat höchstens %1 Tags.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>Erfolgreich geändert</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>Vorerst zeigt diese Seite nur den Stand der Dinge.</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>Der Dienst ist nicht erreichbar. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>Was darf Ihre Organisation?</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>Jede Änderung gilt sofort.</translation>
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
        <source>tag_refused_blank</source>
        <translation>Geben Sie zuerst einen Tag ein.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>Das Gerät hat diesen Tag schon.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>Ein Tag hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>Tag %1 entfernen</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>Das Formular enthält, was in der Datei %1 steht. Prüfen Sie es, akzeptieren Sie die Vereinbarung und registrieren Sie das Gerät.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>Vom USB-Laufwerk ausgefüllt</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>In der Registrierungsdatei auf dem USB-Laufwerk fehlt der Code oder das Konto.</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>Die Registrierungsdatei auf dem USB-Laufwerk ist kein JSON-Text in UTF-8.</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>Die Registrierungsdatei auf dem USB-Laufwerk ist eine Verknüpfung, keine eigene Datei.</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>Die Registrierungsdatei auf dem USB-Laufwerk ist größer als %1 KiB.</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>Die Registrierungsdatei auf dem USB-Laufwerk lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>Die Registrierungsdatei auf dem USB-Laufwerk hat nicht das richtige Format.</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Weiterer Tag</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
</TS>

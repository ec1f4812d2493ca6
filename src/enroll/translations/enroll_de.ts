<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>Keine Verbindung zu Ihrer Organisation</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>Das Gerät wurde nicht registriert. Prüfen Sie Ihre Angaben und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>Code und E-Mail-Adresse passen nicht zusammen.</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>Der Verwaltungsdienst ist nicht erreichbar. Prüfen Sie das Netzwerk.</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>Dieses Gerät ist registriert.</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>Das hat nicht geklappt</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>Das Gerät verbindet sich von selbst, sobald es kann. Wenn nicht, liegt es vielleicht am Netzwerk.</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>Netzwerk ansehen</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>Der Dienst auf diesem Gerät wurde nicht erreicht. Sehen Sie nach dem Netzwerk, oder versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Hier sehen Sie, zu welcher Organisation dieses Gerät gehört und wer es verwaltet.</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>Geben Sie ein, was Sie von Ihrer Organisation erhalten haben. Danach verwaltet sie das Gerät.</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>Dieses Gerät ist registriert.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>Fehler.</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>Bitte lesen und akzeptieren Sie zuerst die Vereinbarung.</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>Die Liste ist zu lang: Ein Gerät hat höchstens %1 Schlagwörter.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>Erfolgreich geändert</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>Gesperrte Einstellungen werden auf der Seite „%1“ geändert.</translation>
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
        <source>tag_refused_blank</source>
        <translation>Geben Sie zuerst ein Schlagwort ein.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>Das Gerät hat dieses Schlagwort schon.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>Ein Schlagwort hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>Schlagwort %1 entfernen</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>Die &lt;b&gt;Datenschutzerklärung&lt;/b&gt; sagt, welche Daten dieses Geräts die Organisation erhält.</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>Die &lt;b&gt;Nutzungsvereinbarung&lt;/b&gt; sagt, was Sie mit der Registrierung dieses Geräts akzeptieren.</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>Die Registrierung ist nicht möglich.</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>Die Abmeldung ist nicht möglich.</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>Auf dem USB-Laufwerk liegt eine Datei für die Registrierung, aber dieses Gerät ist bereits registriert.</translation>
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
        <source>view_register_admin_account</source>
        <translation>E-Mail-Adresse des Administrators</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>Ich habe beides gelesen und stimme zu.</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>Zum Beispiel Raum 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>Anfang des Namens</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>Ende des Namens</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>Das ist keine gültige E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>Bitte ausfüllen.</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>Der Code hat genau sechs Zeichen.</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>Name in zwei Feldern</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>Name in einem Feld</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>Organisationscode</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>Sechs Zeichen</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>Nutzungsvereinbarung</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Weiteres Schlagwort</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>Registrierung aufheben</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>+ Add attachments (Optional)</source>
        <translation>+ Anhänge hinzufügen (optional)</translation>
    </message>
    <message>
        <source>attachment_cancel</source>
        <translation>Hochladen von %1 abbrechen</translation>
    </message>
    <message>
        <source>attachment_choose</source>
        <translation>Anhänge auswählen</translation>
    </message>
    <message>
        <source>attachment_empty</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>attachment_folder</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>attachment_note</source>
        <translation>Bis zu %1 Dateien von je %2. Dateien lassen sich auch hierher ziehen, Bilder einfügen.</translation>
    </message>
    <message>
        <source>attachment_refused</source>
        <translation>„%1“ wurde nicht angehängt: %2</translation>
    </message>
    <message>
        <source>attachment_refused_together</source>
        <translation>Nicht angehängt: %1. Der Grund jeweils: %2</translation>
    </message>
    <message>
        <source>attachment_remove</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>attachment_retry</source>
        <translation>%1 erneut hochladen</translation>
    </message>
    <message>
        <source>attachment_too_large</source>
        <translation>Die Datei ist größer als %1.</translation>
    </message>
    <message>
        <source>attachment_too_many</source>
        <translation>Es sind bereits %1 Anhänge.</translation>
    </message>
    <message>
        <source>attachment_twice</source>
        <translation>Die Datei ist bereits angehängt.</translation>
    </message>
    <message>
        <source>attachment_unreadable</source>
        <translation>Die Datei lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>attachment_uploaded</source>
        <translation>Hochgeladen, %1</translation>
    </message>
    <message>
        <source>attachment_uploading</source>
        <translation>Wird hochgeladen, %1 % von %2</translation>
    </message>
    <message>
        <source>attachment_waiting</source>
        <translation>Wartet, %1</translation>
    </message>
    <message>
        <source>feedback_cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>feedback_cancelled</source>
        <translation>Der Bericht wurde abgebrochen.</translation>
    </message>
    <message>
        <source>feedback_close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>feedback_crash</source>
        <translation>Das Programm hat sich am %1 unerwartet beendet. Ein Vermerk, an welcher Stelle, wird mit dem Bericht gesendet.</translation>
    </message>
    <message>
        <source>feedback_discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>feedback_failed_advice</source>
        <translation>Nichts ist verloren: Versuchen Sie es erneut, oder speichern Sie den Bericht und geben Sie ihn auf anderem Weg weiter.</translation>
    </message>
    <message>
        <source>feedback_failed_notice</source>
        <translation>Ihr Bericht wurde nicht gesendet. Den Grund nennt die Seite „Feedback“.</translation>
    </message>
    <message>
        <source>feedback_failed_pack</source>
        <translation>Die Protokolle dieses Geräts konnten nicht gepackt werden.</translation>
    </message>
    <message>
        <source>feedback_failed_title</source>
        <translation>Der Bericht wurde nicht gesendet</translation>
    </message>
    <message>
        <source>feedback_goes_on</source>
        <translation>Der Bericht läuft weiter. Sie erfahren, wie er endet.</translation>
    </message>
    <message>
        <source>feedback_leave_content</source>
        <translation>Er wurde nicht gesendet. Was Sie geschrieben und angehängt haben, ginge verloren.</translation>
    </message>
    <message>
        <source>feedback_leave_title</source>
        <translation>Diesen Bericht verwerfen?</translation>
    </message>
    <message>
        <source>feedback_replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>feedback_replace_content</source>
        <translation>„%1“ gibt es bereits. Der Inhalt ginge verloren.</translation>
    </message>
    <message>
        <source>feedback_replace_title</source>
        <translation>Diese Datei ersetzen?</translation>
    </message>
    <message>
        <source>feedback_retry</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>feedback_save</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>feedback_save_no_attachment</source>
        <translation>Ein Anhang lässt sich nicht mehr lesen.</translation>
    </message>
    <message>
        <source>feedback_save_no_place</source>
        <translation>Dorthin lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>feedback_save_no_room</source>
        <translation>Dort ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>feedback_save_type</source>
        <translation>ZIP-Archiv</translation>
    </message>
    <message>
        <source>feedback_saving</source>
        <translation>Der Bericht wird gespeichert …</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <translation>Der Bericht wird gesendet …</translation>
    </message>
    <message>
        <source>feedback_sent_content</source>
        <translation>Vielen Dank. Er liegt jetzt Ihrer Administration vor.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <translation>Der Bericht wurde gesendet</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Beschreiben Sie hier ein Problem. Ihre Administration erhält den Bericht zusammen mit den Protokollen dieses Geräts.</translation>
    </message>
    <message>
        <source>feedback_service_says</source>
        <translation>Der Dienst meldet: %1</translation>
    </message>
    <message>
        <source>feedback_stay</source>
        <translation>Weiterschreiben</translation>
    </message>
    <message>
        <source>feedback_unknown_advice</source>
        <translation>Der Dienst hat ihn nicht bestätigt, hat ihn aber vielleicht schon; ein neuer Versuch sendet ihn dann doppelt. Sie können den Bericht auch speichern und auf anderem Weg weitergeben.</translation>
    </message>
    <message>
        <source>feedback_unknown_title</source>
        <translation>Ob der Bericht gesendet wurde, ist ungewiss</translation>
    </message>
    <message>
        <source>feedback_uploads_pending</source>
        <translation>Der Bericht kann gesendet werden, sobald die Anhänge hochgeladen sind.</translation>
    </message>
    <message>
        <source>feedback_without_content</source>
        <translation>Sie sind nicht hochgeladen:
%1</translation>
    </message>
    <message>
        <source>feedback_without_send</source>
        <translation>Trotzdem senden</translation>
    </message>
    <message>
        <source>feedback_without_title</source>
        <translation>Ohne diese Anhänge senden?</translation>
    </message>
    <message>
        <source>log_contract_email_hint</source>
        <translation>name@beispiel.de</translation>
    </message>
    <message>
        <source>log_contract_email_title</source>
        <translation>E-Mail-Adresse für Rückfragen (optional)</translation>
    </message>
    <message>
        <source>log_description_hint</source>
        <translation>Was ist geschehen, und was haben Sie davor getan?</translation>
    </message>
    <message>
        <source>log_description_title</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>log_export_log_failed</source>
        <translation>Der Bericht konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>log_export_log_success</source>
        <translation>Der Bericht wurde gespeichert.</translation>
    </message>
    <message>
        <source>log_files_content</source>
        <translation>Neben dem, was Sie schreiben und anhängen, enthält der Bericht den Namen dieses Geräts (%1), seine Kennung beim Dienst und seine Protokolldateien: %2, insgesamt %3.</translation>
    </message>
    <message>
        <source>log_files_end_only</source>
        <translation>Gezeigt werden die letzten %1 der Datei; gesendet wird sie ganz.</translation>
    </message>
    <message>
        <source>log_files_no_text</source>
        <translation>Diese Datei enthält keinen Text. Sie sagt Entwicklern, an welcher Stelle das Programm stehen geblieben ist.</translation>
    </message>
    <message>
        <source>log_files_none</source>
        <translation>Auf diesem Gerät gibt es keine Protokolldateien.</translation>
    </message>
    <message>
        <source>log_files_open</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>log_files_open_name</source>
        <translation>%1 ansehen</translation>
    </message>
    <message>
        <source>log_files_title</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>log_files_unreadable</source>
        <translation>Diese Datei lässt sich nicht lesen. Der Bericht lässt sie aus.</translation>
    </message>
    <message>
        <source>log_report_title</source>
        <translation>Protokollbericht</translation>
    </message>
    <message>
        <source>log_submit</source>
        <translation>Absenden</translation>
    </message>
    <message>
        <source>log_submit_tip</source>
        <translation>Die Protokolle dieses Geräts werden mit dem Bericht gesendet.</translation>
    </message>
</context>
</TS>

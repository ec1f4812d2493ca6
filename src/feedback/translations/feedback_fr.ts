<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>+ Add attachments (Optional)</source>
        <translation>+ Ajouter des pièces jointes (facultatif)</translation>
    </message>
    <message>
        <source>attachment_cancel</source>
        <translation>Annuler l’envoi de %1</translation>
    </message>
    <message>
        <source>attachment_choose</source>
        <translation>Choisir des pièces jointes</translation>
    </message>
    <message>
        <source>attachment_empty</source>
        <translation>le fichier est vide.</translation>
    </message>
    <message>
        <source>attachment_folder</source>
        <translation>c’est un dossier.</translation>
    </message>
    <message>
        <source>attachment_note</source>
        <translation>Jusqu’à %1 fichiers de %2 chacun. Vous pouvez aussi déposer des fichiers ici ou coller une image.</translation>
    </message>
    <message>
        <source>attachment_refused</source>
        <translation>« %1 » n’a pas été joint : %2</translation>
    </message>
    <message>
        <source>attachment_refused_together</source>
        <translation>Non joints : %1. La raison pour chacun : %2</translation>
    </message>
    <message>
        <source>attachment_remove</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>attachment_retry</source>
        <translation>Réessayer d’envoyer %1</translation>
    </message>
    <message>
        <source>attachment_too_large</source>
        <translation>le fichier dépasse %1.</translation>
    </message>
    <message>
        <source>attachment_too_many</source>
        <translation>il y a déjà %1 pièces jointes.</translation>
    </message>
    <message>
        <source>attachment_twice</source>
        <translation>il est déjà joint.</translation>
    </message>
    <message>
        <source>attachment_unreadable</source>
        <translation>le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>attachment_uploaded</source>
        <translation>Téléversé, %1</translation>
    </message>
    <message>
        <source>attachment_uploading</source>
        <translation>Envoi en cours, %1 % de %2</translation>
    </message>
    <message>
        <source>attachment_waiting</source>
        <translation>En attente, %1</translation>
    </message>
    <message>
        <source>feedback_cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>feedback_cancelled</source>
        <translation>Le rapport a été annulé.</translation>
    </message>
    <message>
        <source>feedback_close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>feedback_crash</source>
        <translation>Le programme s’est arrêté de façon inattendue le %1. Un relevé de l’endroit où il s’est arrêté accompagne le rapport.</translation>
    </message>
    <message>
        <source>feedback_discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>feedback_failed_advice</source>
        <translation>Rien n’est perdu : réessayez, ou enregistrez le rapport et transmettez-le autrement.</translation>
    </message>
    <message>
        <source>feedback_failed_notice</source>
        <translation>Votre rapport n’a pas été envoyé. La page « Commentaires » dit pourquoi.</translation>
    </message>
    <message>
        <source>feedback_failed_pack</source>
        <translation>Les journaux de cet appareil n’ont pas pu être compressés.</translation>
    </message>
    <message>
        <source>feedback_failed_title</source>
        <translation>Le rapport n’a pas été envoyé</translation>
    </message>
    <message>
        <source>feedback_goes_on</source>
        <translation>L’opération continue. Vous serez averti du résultat.</translation>
    </message>
    <message>
        <source>feedback_leave_content</source>
        <translation>Il n’a pas été envoyé. Le texte et les pièces jointes seraient perdus.</translation>
    </message>
    <message>
        <source>feedback_leave_title</source>
        <translation>Abandonner ce rapport ?</translation>
    </message>
    <message>
        <source>feedback_replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>feedback_replace_content</source>
        <translation>« %1 » existe déjà. Son contenu serait perdu.</translation>
    </message>
    <message>
        <source>feedback_replace_title</source>
        <translation>Remplacer ce fichier ?</translation>
    </message>
    <message>
        <source>feedback_retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>feedback_save</source>
        <translation>Enregistrer …</translation>
    </message>
    <message>
        <source>feedback_save_no_attachment</source>
        <translation>Une pièce jointe n’est plus lisible.</translation>
    </message>
    <message>
        <source>feedback_save_no_place</source>
        <translation>Il est impossible d’écrire à cet endroit.</translation>
    </message>
    <message>
        <source>feedback_save_no_room</source>
        <translation>Il n’y a pas assez de place à cet endroit.</translation>
    </message>
    <message>
        <source>feedback_save_type</source>
        <translation>Archive ZIP</translation>
    </message>
    <message>
        <source>feedback_saving</source>
        <translation>Le rapport est en cours d’enregistrement …</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <translation>Le rapport est en cours d’envoi …</translation>
    </message>
    <message>
        <source>feedback_sent_content</source>
        <translation>Merci. Votre administrateur l’a maintenant reçu.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <translation>Le rapport a été envoyé</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Décrivez ici un problème. Votre administrateur reçoit le rapport avec les journaux de cet appareil.</translation>
    </message>
    <message>
        <source>feedback_service_says</source>
        <translation>Le service indique : %1</translation>
    </message>
    <message>
        <source>feedback_stay</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>feedback_unknown_advice</source>
        <translation>Le service ne l’a pas confirmé, mais l’a peut-être déjà ; réessayer peut l’envoyer deux fois. Vous pouvez aussi enregistrer le rapport et le transmettre autrement.</translation>
    </message>
    <message>
        <source>feedback_unknown_title</source>
        <translation>On ne sait pas si le rapport a été envoyé</translation>
    </message>
    <message>
        <source>feedback_uploads_pending</source>
        <translation>Le rapport pourra être envoyé une fois les pièces jointes téléversées.</translation>
    </message>
    <message>
        <source>feedback_without_content</source>
        <translation>Elles n’ont pas été téléversées :
%1</translation>
    </message>
    <message>
        <source>feedback_without_send</source>
        <translation>Envoyer sans</translation>
    </message>
    <message>
        <source>feedback_without_title</source>
        <translation>Envoyer sans ces pièces jointes ?</translation>
    </message>
    <message>
        <source>log_contract_email_hint</source>
        <translation>nom@exemple.fr</translation>
    </message>
    <message>
        <source>log_contract_email_title</source>
        <translation>Adresse e-mail pour toute question (facultatif)</translation>
    </message>
    <message>
        <source>log_description_hint</source>
        <translation>Que s’est-il passé, et que faisiez-vous juste avant ?</translation>
    </message>
    <message>
        <source>log_description_title</source>
        <translation>Description du problème</translation>
    </message>
    <message>
        <source>log_export_log_failed</source>
        <translation>Le rapport n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>log_export_log_success</source>
        <translation>Le rapport a été enregistré.</translation>
    </message>
    <message>
        <source>log_files_content</source>
        <translation>En plus de votre texte et de vos pièces jointes, le rapport contient le nom de cet appareil (%1), son identité auprès du service et ses fichiers journaux : %2, soit %3 au total.</translation>
    </message>
    <message>
        <source>log_files_end_only</source>
        <translation>Les derniers %1 du fichier sont affichés ; il est envoyé en entier.</translation>
    </message>
    <message>
        <source>log_files_no_text</source>
        <translation>Ce fichier ne contient pas de texte. Il indique aux développeurs où le programme s’est arrêté.</translation>
    </message>
    <message>
        <source>log_files_none</source>
        <translation>Il n’y a aucun fichier journal sur cet appareil.</translation>
    </message>
    <message>
        <source>log_files_open</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>log_files_open_name</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>log_files_title</source>
        <translation>Ce qui sera envoyé</translation>
    </message>
    <message>
        <source>log_files_unreadable</source>
        <translation>Ce fichier ne peut pas être lu. Le rapport l’omet.</translation>
    </message>
    <message>
        <source>log_report_title</source>
        <translation>Rapport de journal</translation>
    </message>
    <message>
        <source>log_submit</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>log_submit_tip</source>
        <translation>Les journaux de cet appareil sont envoyés avec le rapport.</translation>
    </message>
</context>
</TS>

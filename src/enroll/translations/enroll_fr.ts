<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>Pas de connexion à votre organisation</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>L’appareil n’a pas été inscrit. Vérifiez vos saisies et réessayez.</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>Le code et l’adresse e-mail ne correspondent pas.</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>Le service de gestion est injoignable. Vérifiez le réseau.</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>Cet appareil est inscrit.</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>Cela n’a pas fonctionné</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>L’appareil se connecte de lui-même dès que possible. Sinon, le réseau en est peut-être la cause.</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>Voir le réseau</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>Le service de cet appareil n’a pas pu être joint. Vérifiez le réseau ou réessayez.</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Vous voyez ici à quelle organisation appartient cet appareil et qui l’administre.</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>Saisissez ce que votre organisation vous a communiqué. Elle gérera ensuite cet appareil.</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>Cet appareil est inscrit.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>Erreur.</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>Veuillez d’abord lire et accepter l’accord.</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>La liste est trop longue : un appareil porte au plus %1 étiquettes.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>Modification effectuée</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>Les paramètres verrouillés se modifient sur la page « %1 ».</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>Le service est injoignable. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>Que peut faire votre organisation ?</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>Chaque modification prend effet immédiatement.</translation>
    </message>
    <message>
        <source>tag_refused_blank</source>
        <translation>Saisissez d’abord une étiquette.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>L’appareil porte déjà cette étiquette.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>Une étiquette compte au plus %1 caractères.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>Supprimer l’étiquette %1</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>La &lt;b&gt;politique de confidentialité&lt;/b&gt; indique quelles données de cet appareil l’organisation reçoit.</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>Les &lt;b&gt;conditions d’utilisation&lt;/b&gt; indiquent ce que vous acceptez en inscrivant cet appareil.</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>Inscription impossible.</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>Désinscription impossible.</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>Un fichier d’inscription se trouve sur la clé USB, mais cet appareil est déjà inscrit.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>Le formulaire reprend le contenu du fichier %1. Vérifiez-le, acceptez l’accord et inscrivez cet appareil.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>Rempli à partir de la clé USB</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>Il manque le code ou le compte dans le fichier d’inscription de la clé USB.</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>Le fichier d’inscription de la clé USB n’est pas un texte JSON en UTF-8.</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>Le fichier d’inscription de la clé USB est un lien et non un fichier.</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>Le fichier d’inscription de la clé USB dépasse %1 Kio.</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>Le fichier d’inscription de la clé USB est illisible.</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>Le fichier d’inscription de la clé USB n’a pas le bon format.</translation>
    </message>
    <message>
        <source>view_register_admin_account</source>
        <translation>Adresse e-mail de l’administrateur</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>J’ai lu les deux et j’accepte.</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>Nom de l’appareil</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>Par exemple Salle 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>Début du nom</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>Fin du nom</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>Cette adresse e-mail n’est pas valide.</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>Veuillez remplir ce champ.</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>Le code comporte exactement six caractères.</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>Nom en deux champs</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>Nom en un champ</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>Code de l’organisation</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>Six caractères</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Nouvelle étiquette</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>Inscrire</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>Désinscrire cet appareil</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Ajouter</translation>
    </message>
</context>
</TS>

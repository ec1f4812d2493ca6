<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>Cet appareil est inscrit.</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Localiser cet appareil</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Vous voyez ici à quelle organisation appartient cet appareil et qui l’administre.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>Veuillez d’abord lire et accepter l’accord.</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrateur</translation>
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
        <source>page_note_state_only</source>
        <translation>Pour l’instant, cette page ne fait qu’afficher l’état actuel.</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Terminé</translation>
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
        <source>settings_monitor_screen_preview_tip</source>
        <translation>Les administrateurs voient ce qui est affiché à l’écran.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>Voir l’écran</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>Les administrateurs utilisent la souris et le clavier de cet appareil. Pour cela, ils doivent voir l’écran.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>Commander à distance</translation>
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
        <source>view_register_windows_tag_hint</source>
        <translation>Nouvelle étiquette</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Ajouter</translation>
    </message>
</context>
</TS>

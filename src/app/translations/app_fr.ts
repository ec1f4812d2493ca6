<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>La partie visible de la gestion de l’appareil. Elle fonctionne avec un service présent sur cet appareil.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>À propos de Velmora RYX</translation>
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
        <source>fact_addresses</source>
        <translation>Adresses réseau</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrateur</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Nom de l’appareil</translation>
    </message>
    <message>
        <source>fact_local_service</source>
        <translation>Service sur cet appareil</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>Service de gestion</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>fact_service_not_reached</source>
        <translation>Injoignable</translation>
    </message>
    <message>
        <source>fact_service_reached</source>
        <translation>En marche</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>features_sentence</source>
        <translation>Vous voyez ici quelles fenêtres contextuelles sont bloquées sur cet appareil.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>feedback_note</source>
        <translation>Cette version ne permet pas encore d’envoyer de rapports. En attendant, adressez-vous directement à votre administrateur.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>C’est ici qu’un problème est décrit et signalé à votre administrateur, avec les journaux de cet appareil.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Rapport de journal</translation>
    </message>
    <message>
        <source>header_no_organisation</source>
        <translation>Pas encore géré par une organisation</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>Liaison avec le service de gestion : %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>Inscrire cet appareil</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>Avec Velmora RYX, votre organisation prend soin de cet appareil : elle le tient à jour, aide en cas de problème et le protège en votre absence.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>Munissez-vous du code d’organisation à six caractères et de l’adresse e-mail de l’administrateur.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>C’est fait : le signe en haut indique « Connecté ».</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>Inscrivez cet appareil. Cela prend environ une minute.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>Bienvenue dans Velmora RYX</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Les chaînes que votre organisation envoie à cet écran se lancent et s’arrêtent ici.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Chaînes en direct</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>Chaînes en direct</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>Le service de gestion est injoignable</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>Certains paramètres sont gérés par votre organisation</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>Menu principal</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Vous voyez ici comment cet appareil atteint le service de gestion.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>Veuillez contacter l’administrateur informatique</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>room_note_state_only</source>
        <translation>Pour l’instant, cette page ne fait qu’afficher l’état actuel.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>L’apparence de ce programme et sa langue. Votre choix prend effet immédiatement.</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>Connexion en cours …</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Non inscrit</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>Le canal de cet appareil a été changé.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 « %2 ». %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>Liaison : %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>Impossible de se connecter à</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>Cet appareil est déjà inscrit. Les données de la clé USB n’ont pas été utilisées.</translation>
    </message>
    <message>
        <source>usb_bind_success</source>
        <translation>Les données d’inscription ont été lues sur la clé USB.</translation>
    </message>
</context>
</TS>

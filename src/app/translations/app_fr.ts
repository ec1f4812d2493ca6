<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
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
        <source>launcher_no_service</source>
        <translation>Le service de cet appareil est arrêté. L’inscription pourra commencer dès son retour.</translation>
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
        <source>live_vanished</source>
        <translation>La chaîne « %1 », en cours de lecture, n’est plus proposée.</translation>
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
        <source>menu_mark_update</source>
        <translation>Il y a du nouveau sur une mise à jour</translation>
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
</context>
</TS>

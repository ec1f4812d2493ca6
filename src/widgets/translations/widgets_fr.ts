<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Localiser cet appareil</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Adresses réseau</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Nom de l’appareil</translation>
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
        <source>loading</source>
        <translation>Veuillez patienter …</translation>
    </message>
    <message>
        <source>organisation_unnamed</source>
        <translation>Votre organisation</translation>
    </message>
    <message>
        <source>permission_held</source>
        <translation>%1 a verrouillé ce paramètre. Seul qui connaît les six chiffres peut le modifier.</translation>
    </message>
    <message>
        <source>permission_held_opened</source>
        <translation>%1 a verrouillé ce paramètre. Vous pouvez le modifier jusqu’à ce que vous quittiez cette page.</translation>
    </message>
    <message>
        <source>permission_no_service</source>
        <translation>Le service de cet appareil est injoignable : rien ne peut être modifié pour l’instant. Voici le dernier état connu.</translation>
    </message>
    <message>
        <source>permission_old</source>
        <translation>Voici le dernier état connu. Le service ne l’a pas confirmé depuis la reconnexion.</translation>
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
        <source>status_no_service</source>
        <translation>Service arrêté</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Non inscrit</translation>
    </message>
    <message>
        <source>web_error_bad_answer</source>
        <translation>La réponse du service est incompréhensible.</translation>
    </message>
    <message>
        <source>web_error_cancelled</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>web_error_file</source>
        <translation>Le fichier n’a pas pu être lu ou a changé entre-temps.</translation>
    </message>
    <message>
        <source>web_error_not_allowed</source>
        <translation>Cette adresse n’est pas autorisée.</translation>
    </message>
    <message>
        <source>web_error_not_configured</source>
        <translation>La connexion au service n’est pas configurée correctement sur cet appareil.</translation>
    </message>
    <message>
        <source>web_error_not_trusted</source>
        <translation>Le serveur n’a pas pu prouver son identité.</translation>
    </message>
    <message>
        <source>web_error_other</source>
        <translation>Une erreur est survenue.</translation>
    </message>
    <message>
        <source>web_error_refused</source>
        <translation>Le service a refusé la demande.</translation>
    </message>
    <message>
        <source>web_error_timed_out</source>
        <translation>Le service n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>web_error_too_large</source>
        <translation>Le fichier est trop volumineux.</translation>
    </message>
    <message>
        <source>web_error_unreachable</source>
        <translation>Le service est injoignable.</translation>
    </message>
</context>
</TS>

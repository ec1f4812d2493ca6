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

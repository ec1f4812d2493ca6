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
</context>
</TS>

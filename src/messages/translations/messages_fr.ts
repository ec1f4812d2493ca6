<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>message_address_open</source>
        <translation>Ouvrir la page</translation>
    </message>
    <message>
        <source>message_address_title</source>
        <translation>Ouvrir cette page dans le navigateur ?</translation>
    </message>
    <message>
        <source>message_count</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>message_file_absent</source>
        <translation>Le fichier n’est pas sur cet appareil.</translation>
    </message>
    <message>
        <source>message_file_again</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>message_file_cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>message_file_disk_full</source>
        <translation>Il n’y a pas assez de place pour le fichier.</translation>
    </message>
    <message>
        <source>message_file_loading</source>
        <translation>Téléchargement… %1 %</translation>
    </message>
    <message>
        <source>message_file_open</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>message_file_save_as</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>message_file_saved</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>message_file_show</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>message_file_unverified</source>
        <translation>L’expéditeur n’a pas fourni de somme de contrôle ; il n’a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>message_file_unwritable</source>
        <translation>Le fichier n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>message_file_wrong</source>
        <translation>Le fichier reçu n’est pas celui qui a été envoyé. Il n’a pas été conservé.</translation>
    </message>
    <message>
        <source>message_kept_open</source>
        <translation>Votre administrateur garde ce message ouvert.</translation>
    </message>
    <message>
        <source>message_state_new</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>message_state_read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>message_state_withdrawn</source>
        <translation>Retiré</translation>
    </message>
    <message>
        <source>message_title</source>
        <translation>Message de votre administrateur</translation>
    </message>
    <message>
        <source>message_title_emergency</source>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>messages_none</source>
        <translation>Il n’y a aucun message.</translation>
    </message>
    <message>
        <source>messages_title</source>
        <translation>Messages</translation>
    </message>
</context>
</TS>

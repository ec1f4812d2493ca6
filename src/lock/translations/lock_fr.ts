<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>lock_cannot_hold</source>
        <translation>Ce bureau ne laisse aucune fenêtre au-dessus des autres : le verrouillage ne peut pas tenir ici.</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>Chiffre %1 sur 6</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>Effacer le dernier chiffre</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>Saisissez le mot de passe à six chiffres</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>En attente du service de cet appareil. Les chiffres compteront dès qu’il aura répondu.</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>Verrouillage de l’écran</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>Saisir le mot de passe</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 a verrouillé cet écran jusqu’à %2.</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 a verrouillé cet écran.</translation>
    </message>
</context>
</TS>

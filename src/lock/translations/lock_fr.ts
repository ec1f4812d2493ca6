<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>Votre organisation a verrouillé les paramètres de cet appareil. Saisissez le mot de passe à six chiffres pour les ouvrir.</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>Votre administrateur connaît le mot de passe.</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1 verrouillés</translation>
    </message>
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
        <source>menu_settings</source>
        <translation>Paramètres</translation>
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
    <message>
        <source>setting_permission_content</source>
        <translation>Votre administrateur a verrouillé ce paramètre. Saisissez le mot de passe à six chiffres pour le modifier.</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>Ce paramètre est verrouillé</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>Votre organisation ne prendra plus soin de cet appareil.</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>Ce mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>Trop de mots de passe erronés. Annulez et revenez dans une minute.</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>Saisissez le mot de passe à six chiffres pour continuer.</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>Votre administrateur le connaît.</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>Ihre Organisation hat die Einstellungen dieses Geräts gesperrt. Geben Sie das sechsstellige Passwort ein, um sie zu öffnen.</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>Ihr Administrator kennt das Passwort.</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1 sind gesperrt</translation>
    </message>
    <message>
        <source>lock_cannot_hold</source>
        <translation>Dieser Desktop lässt kein Fenster über allen anderen, daher kann die Sperre hier nicht halten.</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>Ziffer %1 von 6</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>Letzte Ziffer löschen</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>Sechsstelliges Passwort eingeben</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>Wartet auf den Dienst auf diesem Gerät. Ziffern zählen, sobald er geantwortet hat.</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>Bildschirmsperre</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>Passwort eingeben</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 hat diesen Bildschirm bis %2 Uhr gesperrt.</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 hat diesen Bildschirm gesperrt.</translation>
    </message>
    <message>
        <source>setting_permission_content</source>
        <translation>Ihr Administrator hat diese Einstellung gesperrt. Geben Sie das sechsstellige Passwort ein, um sie zu ändern.</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>Diese Einstellung ist gesperrt</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>Ihre Organisation kümmert sich dann nicht mehr um dieses Gerät.</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>Dieses Passwort ist falsch.</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>Zu viele falsche Passwörter. Brechen Sie ab und kommen Sie in einer Minute wieder.</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>Geben Sie das sechsstellige Passwort ein, um fortzufahren.</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>Ihre Administration kennt es.</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>

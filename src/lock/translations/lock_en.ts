<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>Your organisation has locked the settings of this device. Enter the six-digit password to open them.</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>Your administrator knows the password.</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1 are locked</translation>
    </message>
    <message>
        <source>lock_cannot_hold</source>
        <translation>This desktop lets no window stay above all others, so the lock cannot hold here.</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>Digit %1 of 6</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>Erase the last digit</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>Enter the six-digit password</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>Waiting for the service on this device. Digits count as soon as it has answered.</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>Screen lock</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>Enter password</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 has locked this screen until %2.</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 has locked this screen.</translation>
    </message>
    <message>
        <source>setting_permission_content</source>
        <translation>Your administrator has locked this setting. Enter the six-digit password to change it.</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>This setting is locked</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>Your organisation will no longer look after this device.</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>This password is wrong.</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>Too many wrong passwords. Cancel, and come back in a minute.</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>Enter the six-digit password to go on.</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>Your administrator knows it.</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
</TS>

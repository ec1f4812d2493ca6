<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>The part of the device management that you see. It works together with a service on this device.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>About Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>The clock’s format was set.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>The screen was locked.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>A message or a file came from the administrator.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>What the organisation may do was changed.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>The device left the organisation’s management.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>The screen was unlocked.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>The wallpaper was set.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Windows of other programs were asked to close: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Nothing so far.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Show older (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>What was done here</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Network addresses</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>There is no program on this device that plays “%1” addresses.</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>The service on this device is not reached: channels cannot be started or stopped now.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>Your organisation offers no channels at the moment.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>Channels appear here once this device is enrolled.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>This list is from before the connection was lost.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>Playing</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>This channel’s address cannot be played. Tell your administrator.</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Channels that your organisation sends to this display are started and stopped here.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>The channel is stopped. If the player is still open, close it yourself.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Live channels</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>Channel %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>The service has not told yet which channels there are.</translation>
    </message>
    <message>
        <source>may_control</source>
        <translation>%1 may operate this device’s mouse and keyboard.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 may set the clock’s format and the wallpaper.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 may find out where this device is.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 may lock this screen and the system’s settings.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 may show messages and pictures here and send you files, none of which is opened by itself.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>No organisation manages this device: nobody may do anything here through this program.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 may not operate this device’s mouse and keyboard.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>This program sends none of your files and pictures, unless you send them yourself in a report.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 may not find out where this device is.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>This program does not record what you type in other programs.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 may not see what is on this screen.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 may have windows of other programs closed that its rules name, and is told which.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 was also granted “%2”, which this program does not know.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 may see what is on this screen.</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Here you see how this device reaches the management service.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>How this program looks and which language it speaks, and what your organisation may do on this device.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>Very large</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>Text size</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>settings_theme_system</source>
        <translation>As the system</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>transparency_title</source>
        <translation>What this means</translation>
    </message>
</context>
</TS>

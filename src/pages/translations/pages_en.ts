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
</context>
</TS>

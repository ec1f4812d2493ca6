<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>header_no_organisation</source>
        <translation>Not managed by an organisation yet</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>Link to the management service: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>Enrol this device</translation>
    </message>
    <message>
        <source>launcher_no_service</source>
        <translation>The service on this device is not running. Enrolment can begin as soon as it is back.</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>Velmora RYX lets your organisation look after this device: keep it up to date, help when something is wrong, and protect it when nobody is there.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>Have the six-character organisation code and the administrator’s e-mail address at hand.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>Done: the sign at the top then says “Connected”.</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>Enrol this device. It takes about a minute.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>Welcome to Velmora RYX</translation>
    </message>
    <message>
        <source>live_vanished</source>
        <translation>The channel “%1”, which was playing, is not offered any more.</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>About</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>Enrolment</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>Live channels</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>The management service cannot be reached</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>Some settings are managed by your organisation</translation>
    </message>
    <message>
        <source>menu_mark_update</source>
        <translation>There is news about an update</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>Main menu</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>Please contact IT administrator</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Report a problem</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>The channel of this device was changed.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 “%2”. %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>Link: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>Unable to connect to</translation>
    </message>
</context>
</TS>

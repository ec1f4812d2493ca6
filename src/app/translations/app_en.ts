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
        <source>enrolment_sentence</source>
        <translation>Here you see which organisation this device belongs to and who administers it.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Enrolment</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Network addresses</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Device name</translation>
    </message>
    <message>
        <source>fact_local_service</source>
        <translation>Service on this device</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>Management service</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>None</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>fact_service_not_reached</source>
        <translation>Not reachable</translation>
    </message>
    <message>
        <source>fact_service_reached</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>features_sentence</source>
        <translation>Here you see which pop-up windows are blocked on this device.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>feedback_note</source>
        <translation>Reports cannot be sent from this version yet. Until then please tell your administrator directly.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>From here a problem is described and reported to your administrator, together with the logs of this device.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>Log Report</translation>
    </message>
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
        <source>live_sentence</source>
        <translation>Channels that your organisation sends to this display are started and stopped here.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Live channels</translation>
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
        <source>menu_name</source>
        <translation>Main menu</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>Settings</translation>
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
        <source>room_note_state_only</source>
        <translation>For now this page only shows how things stand.</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>How this program looks and which language it speaks. The choice takes effect at once.</translation>
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
        <source>settings_title</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>Connecting …</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Not enrolled</translation>
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
    <message>
        <source>usb_bind_failed</source>
        <translation>This device is already enrolled. The details on the USB drive were not used.</translation>
    </message>
    <message>
        <source>usb_bind_success</source>
        <translation>The enrolment details were read from the USB drive.</translation>
    </message>
</context>
</TS>

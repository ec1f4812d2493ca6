<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>Close window</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Find this device</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Network addresses</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>Device name</translation>
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
        <source>loading</source>
        <translation>Please wait …</translation>
    </message>
    <message>
        <source>organisation_unnamed</source>
        <translation>Your organisation</translation>
    </message>
    <message>
        <source>permission_held</source>
        <translation>%1 holds this setting. Whoever knows the six digits may change it.</translation>
    </message>
    <message>
        <source>permission_held_opened</source>
        <translation>%1 holds this setting. It can be changed until you leave this page.</translation>
    </message>
    <message>
        <source>permission_no_service</source>
        <translation>The service on this device is not reached: nothing can be changed now, and this is what was known last.</translation>
    </message>
    <message>
        <source>permission_old</source>
        <translation>This is what was known last. The service has not confirmed it since it was reached again.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>Administrators see what is on this screen.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>See the screen</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>Administrators use mouse and keyboard of this device. They have to see the screen for that.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>Remote control</translation>
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
        <source>status_no_service</source>
        <translation>Service not running</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>Not enrolled</translation>
    </message>
    <message>
        <source>web_error_bad_answer</source>
        <translation>The answer of the service could not be understood.</translation>
    </message>
    <message>
        <source>web_error_cancelled</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>web_error_file</source>
        <translation>The file could not be read, or changed meanwhile.</translation>
    </message>
    <message>
        <source>web_error_not_allowed</source>
        <translation>This address is not allowed.</translation>
    </message>
    <message>
        <source>web_error_not_configured</source>
        <translation>The connection to the service is not set up correctly on this device.</translation>
    </message>
    <message>
        <source>web_error_not_trusted</source>
        <translation>The server could not prove its identity.</translation>
    </message>
    <message>
        <source>web_error_other</source>
        <translation>Something went wrong.</translation>
    </message>
    <message>
        <source>web_error_refused</source>
        <translation>The service refused the request.</translation>
    </message>
    <message>
        <source>web_error_timed_out</source>
        <translation>The service did not answer in time.</translation>
    </message>
    <message>
        <source>web_error_too_large</source>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>web_error_unreachable</source>
        <translation>The service could not be reached.</translation>
    </message>
</context>
</TS>

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
        <source>loading</source>
        <translation>Please wait …</translation>
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
</context>
</TS>

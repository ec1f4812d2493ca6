<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>This device is enrolled.</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>Find this device</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Close</translation>
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
        <source>error_tip_uncheck_privacy</source>
        <translation>Please read and accept the agreement first.</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>The list is too long: a device has at most %1 tags.</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>Modified successfully</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>For now this page only shows how things stand.</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>The service cannot be reached. Nothing was changed.</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>What may your organisation do?</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>Each change counts at once.</translation>
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
        <translation>Control from afar</translation>
    </message>
    <message>
        <source>tag_refused_blank</source>
        <translation>Type a tag first.</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>The device already has this tag.</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>A tag has at most %1 characters.</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>Remove the tag %1</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>The form holds what the file %1 says. Check it, accept the agreement, and enrol this device.</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>Filled in from the USB drive</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>The enrolment file on the USB drive lacks the code or the account.</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>The enrolment file on the USB drive is no JSON text in UTF-8.</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>The enrolment file on the USB drive is a link, not a file of its own.</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>The enrolment file on the USB drive is larger than %1 KiB.</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>The enrolment file on the USB drive cannot be read.</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>The enrolment file on the USB drive does not have the right format.</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Another tag</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Add</translation>
    </message>
</context>
</TS>

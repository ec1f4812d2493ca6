<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>No connection to your organisation</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>The device was not enrolled. Check your entries and try again.</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>Code and e-mail address do not belong together.</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>The management service cannot be reached. Check the network.</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>This device is enrolled.</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>That did not work</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>The device connects by itself as soon as it can. If it does not, the network may be the reason.</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>Look at the network</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>The service on this device was not reached. Look at the network, or try again.</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>Here you see which organisation this device belongs to and who administers it.</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>Enter what your organisation gave you. The device is then managed by it.</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>This device is enrolled.</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>Enrolment</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>error .</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>Please read and accept the agreement first.</translation>
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
        <source>permission_done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>Held settings are changed on the page “%1”.</translation>
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
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>Unable to bind.</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>Unable to UnEnroll.</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>A file for the enrolment was found on the USB drive, but this device is enrolled already.</translation>
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
        <translation>The enrolment file on the USB drive is not JSON text in UTF-8.</translation>
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
        <source>view_register_admin_account</source>
        <translation>Administrator’s e-mail address</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>I have read both and agree.</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>Device name</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>Such as Room 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>Beginning of the name</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>End of the name</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>This is not a valid e-mail address.</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>Please fill this in.</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>The code has exactly six characters.</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>Name in two fields</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>Name in one field</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>Privacy Policy</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>Organisation code</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>Six characters</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>User Agreement</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>Another tag</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>Enrol</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>Unenrol this device</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>Add</translation>
    </message>
</context>
</TS>

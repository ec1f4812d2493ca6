<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>message_address_open</source>
        <translation>Open page</translation>
    </message>
    <message>
        <source>message_address_title</source>
        <translation>Open this page in the browser?</translation>
    </message>
    <message>
        <source>message_count</source>
        <translation>%1 more</translation>
    </message>
    <message>
        <source>message_file_absent</source>
        <translation>The file is not on this device.</translation>
    </message>
    <message>
        <source>message_file_again</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>message_file_cancel</source>
        <translation>Cancel download</translation>
    </message>
    <message>
        <source>message_file_disk_full</source>
        <translation>There is not enough room for the file.</translation>
    </message>
    <message>
        <source>message_file_loading</source>
        <translation>Downloading … %1 %</translation>
    </message>
    <message>
        <source>message_file_open</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>message_file_save_as</source>
        <translation>Save as …</translation>
    </message>
    <message>
        <source>message_file_saved</source>
        <translation>Saved as %1.</translation>
    </message>
    <message>
        <source>message_file_show</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>message_file_unverified</source>
        <translation>The sender gave no checksum, so it could not be checked.</translation>
    </message>
    <message>
        <source>message_file_unwritable</source>
        <translation>The file could not be written.</translation>
    </message>
    <message>
        <source>message_file_wrong</source>
        <translation>What arrived is not the file that was sent. It was not kept.</translation>
    </message>
    <message>
        <source>message_kept_open</source>
        <translation>Your administrator keeps this message open.</translation>
    </message>
    <message>
        <source>message_state_new</source>
        <translation>New</translation>
    </message>
    <message>
        <source>message_state_read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>message_state_withdrawn</source>
        <translation>Withdrawn</translation>
    </message>
    <message>
        <source>message_title</source>
        <translation>Message from your administrator</translation>
    </message>
    <message>
        <source>message_title_emergency</source>
        <translation>Emergency</translation>
    </message>
    <message>
        <source>messages_none</source>
        <translation>There are no messages.</translation>
    </message>
    <message>
        <source>messages_title</source>
        <translation>Messages</translation>
    </message>
</context>
</TS>

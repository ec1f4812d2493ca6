<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>+ Add attachments (Optional)</source>
        <translation>+ Add attachments (Optional)</translation>
    </message>
    <message>
        <source>attachment_cancel</source>
        <translation>Cancel the upload of %1</translation>
    </message>
    <message>
        <source>attachment_choose</source>
        <translation>Choose attachments</translation>
    </message>
    <message>
        <source>attachment_empty</source>
        <translation>the file is empty.</translation>
    </message>
    <message>
        <source>attachment_folder</source>
        <translation>it is a folder.</translation>
    </message>
    <message>
        <source>attachment_note</source>
        <translation>Up to %1 files of %2 each. You can also drop files here or paste a picture.</translation>
    </message>
    <message>
        <source>attachment_refused</source>
        <translation>“%1” was not attached: %2</translation>
    </message>
    <message>
        <source>attachment_refused_together</source>
        <translation>Not attached: %1. The reason for each: %2</translation>
    </message>
    <message>
        <source>attachment_remove</source>
        <translation>Remove %1</translation>
    </message>
    <message>
        <source>attachment_retry</source>
        <translation>Upload %1 again</translation>
    </message>
    <message>
        <source>attachment_too_large</source>
        <translation>it is larger than %1.</translation>
    </message>
    <message>
        <source>attachment_too_many</source>
        <translation>there are %1 attachments already.</translation>
    </message>
    <message>
        <source>attachment_twice</source>
        <translation>it is attached already.</translation>
    </message>
    <message>
        <source>attachment_unreadable</source>
        <translation>it cannot be read.</translation>
    </message>
    <message>
        <source>attachment_uploaded</source>
        <translation>Uploaded, %1</translation>
    </message>
    <message>
        <source>attachment_uploading</source>
        <translation>Uploading, %1 % of %2</translation>
    </message>
    <message>
        <source>attachment_waiting</source>
        <translation>Waiting, %1</translation>
    </message>
    <message>
        <source>feedback_cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>feedback_cancelled</source>
        <translation>The report was cancelled.</translation>
    </message>
    <message>
        <source>feedback_close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>feedback_crash</source>
        <translation>The program ended unexpectedly on %1. A record of where it stopped goes along with the report.</translation>
    </message>
    <message>
        <source>feedback_discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>feedback_failed_advice</source>
        <translation>Nothing is lost: try again, or save the report and pass it on in another way.</translation>
    </message>
    <message>
        <source>feedback_failed_notice</source>
        <translation>Your report was not sent. The page “Feedback” tells why.</translation>
    </message>
    <message>
        <source>feedback_failed_pack</source>
        <translation>The logs of this device could not be packed.</translation>
    </message>
    <message>
        <source>feedback_failed_title</source>
        <translation>The report was not sent</translation>
    </message>
    <message>
        <source>feedback_goes_on</source>
        <translation>The report goes on. You will be told how it ends.</translation>
    </message>
    <message>
        <source>feedback_leave_content</source>
        <translation>It has not been sent. What you have written and attached would be lost.</translation>
    </message>
    <message>
        <source>feedback_leave_title</source>
        <translation>Discard this report?</translation>
    </message>
    <message>
        <source>feedback_replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>feedback_replace_content</source>
        <translation>“%1” exists already. What is in it would be lost.</translation>
    </message>
    <message>
        <source>feedback_replace_title</source>
        <translation>Replace this file?</translation>
    </message>
    <message>
        <source>feedback_retry</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>feedback_save</source>
        <translation>Save report …</translation>
    </message>
    <message>
        <source>feedback_save_no_attachment</source>
        <translation>An attachment cannot be read any more.</translation>
    </message>
    <message>
        <source>feedback_save_no_place</source>
        <translation>That place cannot be written to.</translation>
    </message>
    <message>
        <source>feedback_save_no_room</source>
        <translation>There is not enough room in that place.</translation>
    </message>
    <message>
        <source>feedback_save_type</source>
        <translation>ZIP archive</translation>
    </message>
    <message>
        <source>feedback_saving</source>
        <translation>The report is being saved …</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <translation>The report is being sent …</translation>
    </message>
    <message>
        <source>feedback_sent_content</source>
        <translation>Thank you. Your administrator has it now.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <translation>The report was sent</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>Describe a problem here. Your administrator gets the report together with the logs of this device.</translation>
    </message>
    <message>
        <source>feedback_service_says</source>
        <translation>The service says: %1</translation>
    </message>
    <message>
        <source>feedback_stay</source>
        <translation>Keep writing</translation>
    </message>
    <message>
        <source>feedback_unknown_advice</source>
        <translation>The service has not confirmed it and may have it already; trying again may send it twice. You can also save the report and pass it on in another way.</translation>
    </message>
    <message>
        <source>feedback_unknown_title</source>
        <translation>It is not known whether the report was sent</translation>
    </message>
    <message>
        <source>feedback_uploads_pending</source>
        <translation>The report can be sent once the attachments are uploaded.</translation>
    </message>
    <message>
        <source>feedback_without_content</source>
        <translation>They have not been uploaded:
%1</translation>
    </message>
    <message>
        <source>feedback_without_send</source>
        <translation>Send without</translation>
    </message>
    <message>
        <source>feedback_without_title</source>
        <translation>Send without these attachments?</translation>
    </message>
    <message>
        <source>log_contract_email_hint</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>log_contract_email_title</source>
        <translation>E-mail address for questions (optional)</translation>
    </message>
    <message>
        <source>log_description_hint</source>
        <translation>What happened, and what did you do before?</translation>
    </message>
    <message>
        <source>log_description_title</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>log_export_log_failed</source>
        <translation>The report could not be saved.</translation>
    </message>
    <message>
        <source>log_export_log_success</source>
        <translation>The report was saved.</translation>
    </message>
    <message>
        <source>log_files_content</source>
        <translation>Besides what you write and attach, the report carries the name of this device (%1), what identifies it to the service, and its log files: %2, %3 in all.</translation>
    </message>
    <message>
        <source>log_files_end_only</source>
        <translation>The last %1 of the file are shown; all of it is sent.</translation>
    </message>
    <message>
        <source>log_files_no_text</source>
        <translation>This file holds no text. It tells developers where the program stopped.</translation>
    </message>
    <message>
        <source>log_files_none</source>
        <translation>There are no log files on this device.</translation>
    </message>
    <message>
        <source>log_files_open</source>
        <translation>View</translation>
    </message>
    <message>
        <source>log_files_open_name</source>
        <translation>View %1</translation>
    </message>
    <message>
        <source>log_files_title</source>
        <translation>What will be sent</translation>
    </message>
    <message>
        <source>log_files_unreadable</source>
        <translation>This file cannot be read. The report leaves it out.</translation>
    </message>
    <message>
        <source>log_report_title</source>
        <translation>Log Report</translation>
    </message>
    <message>
        <source>log_submit</source>
        <translation>Submit</translation>
    </message>
    <message>
        <source>log_submit_tip</source>
        <translation>The logs of this device are sent along with the report.</translation>
    </message>
</context>
</TS>

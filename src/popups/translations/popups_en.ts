<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Here you see which pop-up windows are blocked on this device.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>file_publish_cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>popups_dropped</source>
        <translation>This rule is no longer in force</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>Blocking</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>Asked to close today</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>No window was asked to close so far.</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>Windows that were asked to close</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>The service has not answered. Nothing has changed.</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>A pop-up window of %1 was asked to close. Press here to see why.</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>Off: it was switched off</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>Off: this device is not enrolled</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>Show older ones (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>On, rules in force: %1</translation>
    </message>
    <message>
        <source>popups_pick_busy</source>
        <translation>The last report has not been answered yet. Please try again in a minute.</translation>
    </message>
    <message>
        <source>popups_pick_list</source>
        <translation>Choose from a list</translation>
    </message>
    <message>
        <source>popups_pick_point</source>
        <translation>Point at it</translation>
    </message>
    <message>
        <source>popups_pick_sentence</source>
        <translation>Your administrator sees the window’s picture and can have it closed from then on.</translation>
    </message>
    <message>
        <source>popups_pick_title</source>
        <translation>Report a pop-up window</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>Rule: window class %1, product %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>Asked to close, still open</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>Close unwanted pop-up windows</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>This can be asked for once the device is enrolled and its service is reached.</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>Your organisation’s service decides. The switch shows what it says.</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>The service was asked and has not answered yet.</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1, %2 times</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>The service has not said yet</translation>
    </message>
    <message>
        <source>popups_windows_none</source>
        <translation>No window is open that can be reported.</translation>
    </message>
    <message>
        <source>popups_windows_title</source>
        <translation>Which window?</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>This was wrong</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>This was wrong: %1, %2</translation>
    </message>
    <message>
        <source>report_click_pop_ups_block</source>
        <translation>Click on the pop-up window that you want to report</translation>
    </message>
    <message>
        <source>str_pop_ups_</source>
        <translation>Pop-up window of</translation>
    </message>
    <message>
        <source>str_report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>str_this_pop_ups_no_support</source>
        <translation>This window cannot be reported</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_copy</source>
        <translation>Copy all</translation>
    </message>
    <message>
        <source>about_sentence</source>
        <translation>The part of the device management that you see. It works together with a service on this device.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>About Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>The clock’s format was set.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>The screen was locked.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>A message or a file came from the administrator.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>What the organisation may do was changed.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>The device left the organisation’s management.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>The screen was unlocked.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>The wallpaper was set.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Windows of other programs were asked to close: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Nothing so far.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Show older (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>What was done here</translation>
    </message>
    <message>
        <source>fact_account</source>
        <translation>Administrator’s account</translation>
    </message>
    <message>
        <source>fact_user</source>
        <translation>Signed-in user</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>holds_unknown</source>
        <translation>%1 also holds “%2”, which this program does not know.</translation>
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
        <source>licences_sentence</source>
        <translation>This program and what comes with it, each under its own licence.</translation>
    </message>
    <message>
        <source>licences_title</source>
        <translation>Licences</translation>
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
        <source>may_control</source>
        <translation>%1 may operate this device’s mouse and keyboard.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 may set the clock’s format and the wallpaper.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 may find out where this device is.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 may lock this screen and the system’s settings.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 may show messages and pictures here and send you files, none of which is opened by itself.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>No organisation manages this device: nobody may do anything here through this program.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 may not operate this device’s mouse and keyboard.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>This program sends none of your files and pictures, unless you send them yourself in a report.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 may not find out where this device is.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>This program does not record what you type in other programs.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 may not see what is on this screen.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 may have windows of other programs closed that its rules name, and is told which.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 was also granted “%2”, which this program does not know.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 may see what is on this screen.</translation>
    </message>
    <message>
        <source>network_adapter_none</source>
        <translation>No network adapter is connected.</translation>
    </message>
    <message>
        <source>network_adapter_none_advice</source>
        <translation>Plug the network cable in, or switch Wi-Fi on.</translation>
    </message>
    <message>
        <source>network_adapter_up</source>
        <translation>In use: %1.</translation>
    </message>
    <message>
        <source>network_address_found</source>
        <translation>This device has %1.</translation>
    </message>
    <message>
        <source>network_address_none</source>
        <translation>The network has given this device no address.</translation>
    </message>
    <message>
        <source>network_address_none_advice</source>
        <translation>Disconnect from the network and connect again.</translation>
    </message>
    <message>
        <source>network_cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>network_cancelled</source>
        <translation>Not checked, because the check was cancelled.</translation>
    </message>
    <message>
        <source>network_certificate_advice</source>
        <translation>Use another network, and enter no passwords in this one; somebody may be listening in.</translation>
    </message>
    <message>
        <source>network_certificate_bad</source>
        <translation>%1 could not prove who it is: %2</translation>
    </message>
    <message>
        <source>network_certificate_good</source>
        <translation>%1 has proved who it is.</translation>
    </message>
    <message>
        <source>network_certificate_none</source>
        <translation>Not checked: this server is used without encryption.</translation>
    </message>
    <message>
        <source>network_certificate_unread</source>
        <translation>%1 made no secure connection.</translation>
    </message>
    <message>
        <source>network_check_failed</source>
        <translation>The check failed at “%1”.</translation>
    </message>
    <message>
        <source>network_check_no_server</source>
        <translation>No server of the organisation is set up on this device; only the way out of this network was checked.</translation>
    </message>
    <message>
        <source>network_check_passed</source>
        <translation>The check found nothing in the way.</translation>
    </message>
    <message>
        <source>network_clock_advice</source>
        <translation>Set the clock; with a wrong one no secure connection can be made.</translation>
    </message>
    <message>
        <source>network_clock_right</source>
        <translation>The clock agrees with the server’s.</translation>
    </message>
    <message>
        <source>network_clock_unknown</source>
        <translation>Not checked: the server told no time.</translation>
    </message>
    <message>
        <source>network_clock_wrong</source>
        <translation>The clock of this device is off by %1 from the server’s.</translation>
    </message>
    <message>
        <source>network_days</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>network_gateway_found</source>
        <translation>The way out of this network is %1.</translation>
    </message>
    <message>
        <source>network_gateway_none</source>
        <translation>No way out of this network is known.</translation>
    </message>
    <message>
        <source>network_gateway_none_advice</source>
        <translation>Restart the router or connect to another network.</translation>
    </message>
    <message>
        <source>network_hours</source>
        <translation>%1 hours</translation>
    </message>
    <message>
        <source>network_link_other_way</source>
        <translation>It may use another way, or not have noticed yet.</translation>
    </message>
    <message>
        <source>network_link_said</source>
        <translation>What the service says of the link to the organisation: “%1”.</translation>
    </message>
    <message>
        <source>network_link_unknown</source>
        <translation>What the link to the organisation is cannot be told, because the service on this device is not running.</translation>
    </message>
    <message>
        <source>network_minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>network_name_advice</source>
        <translation>Check which name server this network uses, or try another network.</translation>
    </message>
    <message>
        <source>network_name_by_proxy</source>
        <translation>The proxy looks names up.</translation>
    </message>
    <message>
        <source>network_name_found</source>
        <translation>%1 is known as %2.</translation>
    </message>
    <message>
        <source>network_name_not_found</source>
        <translation>The name %1 could not be found.</translation>
    </message>
    <message>
        <source>network_name_not_needed</source>
        <translation>The server is set up by its address; no name has to be looked up.</translation>
    </message>
    <message>
        <source>network_no_server</source>
        <translation>Not checked: no server is set up on this device.</translation>
    </message>
    <message>
        <source>network_pipe_advice</source>
        <translation>Restart this device.</translation>
    </message>
    <message>
        <source>network_pipe_down</source>
        <translation>The service on this device is not running.</translation>
    </message>
    <message>
        <source>network_pipe_up</source>
        <translation>The service on this device is running.</translation>
    </message>
    <message>
        <source>network_proxy_advice</source>
        <translation>Check the proxy in the system’s settings.</translation>
    </message>
    <message>
        <source>network_proxy_none</source>
        <translation>No proxy is used.</translation>
    </message>
    <message>
        <source>network_proxy_not_found</source>
        <translation>The name of the proxy %1 is not known.</translation>
    </message>
    <message>
        <source>network_proxy_not_reached</source>
        <translation>The proxy %1 does not answer.</translation>
    </message>
    <message>
        <source>network_proxy_own_advice</source>
        <translation>This proxy is set in the program’s configuration, where it has to be corrected.</translation>
    </message>
    <message>
        <source>network_proxy_reached</source>
        <translation>The proxy %1 is reached.</translation>
    </message>
    <message>
        <source>network_seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Here you see how this device reaches the management service.</translation>
    </message>
    <message>
        <source>network_server_advice</source>
        <translation>The server may be down, or a firewall is in the way. Try again later.</translation>
    </message>
    <message>
        <source>network_server_by_proxy</source>
        <translation>The proxy does not let this device through to %1.</translation>
    </message>
    <message>
        <source>network_server_by_proxy_advice</source>
        <translation>The proxy needs a rule for this address, or wants a user name.</translation>
    </message>
    <message>
        <source>network_server_reached</source>
        <translation>%1 accepts connections.</translation>
    </message>
    <message>
        <source>network_server_refused</source>
        <translation>%1 refuses connections.</translation>
    </message>
    <message>
        <source>network_server_silent</source>
        <translation>%1 does not answer.</translation>
    </message>
    <message>
        <source>network_sign_in_advice</source>
        <translation>Open a web browser and sign in to the network.</translation>
    </message>
    <message>
        <source>network_sign_in_needed</source>
        <translation>This network wants you to sign in first, at %1.</translation>
    </message>
    <message>
        <source>network_sign_in_none</source>
        <translation>No sign-in page is in the way.</translation>
    </message>
    <message>
        <source>network_skipped</source>
        <translation>Not checked, because an earlier step failed.</translation>
    </message>
    <message>
        <source>network_start</source>
        <translation>Check again</translation>
    </message>
    <message>
        <source>network_state_failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>network_state_not_checked</source>
        <translation>Not checked</translation>
    </message>
    <message>
        <source>network_state_passed</source>
        <translation>In order</translation>
    </message>
    <message>
        <source>network_state_running</source>
        <translation>Being checked …</translation>
    </message>
    <message>
        <source>network_state_waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>network_step_adapter</source>
        <translation>Network adapter</translation>
    </message>
    <message>
        <source>network_step_address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>network_step_certificate</source>
        <translation>Certificate</translation>
    </message>
    <message>
        <source>network_step_clock</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>network_step_gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>network_step_name</source>
        <translation>Name resolution</translation>
    </message>
    <message>
        <source>network_step_pipe</source>
        <translation>Service on this device</translation>
    </message>
    <message>
        <source>network_step_proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>network_step_server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>network_step_sign_in</source>
        <translation>Sign-in page</translation>
    </message>
    <message>
        <source>network_tell_administrator</source>
        <translation>If that does not help, tell the administrator of your organisation.</translation>
    </message>
    <message>
        <source>network_tell_support</source>
        <translation>If that does not help, tell %1.</translation>
    </message>
    <message>
        <source>network_timed_out</source>
        <translation>There was no result within five seconds.</translation>
    </message>
    <message>
        <source>network_timed_out_advice</source>
        <translation>The network may be overloaded. Check again.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>network_verdict_cancelled</source>
        <translation>The check was cancelled.</translation>
    </message>
    <message>
        <source>network_verdict_running</source>
        <translation>The way to your organisation’s servers is being checked …</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>settings_not_kept</source>
        <translation>Your choice could not be saved; it counts until the program ends.</translation>
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
    <message>
        <source>transparency_title</source>
        <translation>What this means</translation>
    </message>
    <message>
        <source>support_mail</source>
        <translation>Write a mail</translation>
    </message>
    <message>
        <source>support_nobody</source>
        <translation>No contact is set up on this device. Ask the administrator of your organisation.</translation>
    </message>
    <message>
        <source>support_page</source>
        <translation>Open the web page</translation>
    </message>
    <message>
        <source>support_title</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>support_trace_hint</source>
        <translation>The link trace shows whoever helps you which messages went to and fro, without what stood in them.</translation>
    </message>
    <message>
        <source>text_copied</source>
        <translation>Copied.</translation>
    </message>
    <message>
        <source>text_copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>text_exists</source>
        <translation>“%1” exists already. Choose another name.</translation>
    </message>
    <message>
        <source>text_not_saved</source>
        <translation>“%1” could not be saved.</translation>
    </message>
    <message>
        <source>text_save</source>
        <translation>Save …</translation>
    </message>
    <message>
        <source>text_save_type</source>
        <translation>Text file</translation>
    </message>
    <message>
        <source>text_saved</source>
        <translation>Saved as “%1”.</translation>
    </message>
    <message>
        <source>trace_sentence</source>
        <translation>The last 500 messages between this program and the service on this device: time, direction, key, name and size. What stood in them is not kept.</translation>
    </message>
    <message>
        <source>trace_title</source>
        <translation>Link trace</translation>
    </message>
    <message>
        <source>update_available</source>
        <translation>Version %1 is available.</translation>
    </message>
    <message>
        <source>update_available_size</source>
        <translation>Version %1 is available (%2).</translation>
    </message>
    <message>
        <source>update_bytes</source>
        <translation>Downloading: %1 so far</translation>
    </message>
    <message>
        <source>update_check</source>
        <translation>Check again</translation>
    </message>
    <message>
        <source>update_failed</source>
        <translation>The update failed.</translation>
    </message>
    <message>
        <source>update_forced</source>
        <translation>Your organisation wants it to be installed.</translation>
    </message>
    <message>
        <source>update_later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>update_no_answer</source>
        <translation>The service was asked to update and has not answered for a minute.</translation>
    </message>
    <message>
        <source>update_no_service</source>
        <translation>The service on this device is not running; only it can look for updates.</translation>
    </message>
    <message>
        <source>update_now</source>
        <translation>Update now</translation>
    </message>
    <message>
        <source>update_old</source>
        <translation>The link to the service dropped since; that is what it said at %1.</translation>
    </message>
    <message>
        <source>update_percent</source>
        <translation>Downloading: %1 %</translation>
    </message>
    <message>
        <source>update_ready</source>
        <translation>The update is downloaded. The service installs it.</translation>
    </message>
    <message>
        <source>update_requested</source>
        <translation>The service was asked to update. Waiting for it …</translation>
    </message>
    <message>
        <source>update_retry</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>update_silent</source>
        <translation>The service installs it by itself; there is nothing to do.</translation>
    </message>
    <message>
        <source>update_stalled</source>
        <translation>Nothing has moved for a minute.</translation>
    </message>
    <message>
        <source>update_title</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>update_told</source>
        <translation>As of %1</translation>
    </message>
    <message>
        <source>update_unknown</source>
        <translation>Waiting for the service …</translation>
    </message>
    <message>
        <source>update_up_to_date</source>
        <translation>This program is up to date.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Hier sehen Sie, welche Pop-up-Fenster auf diesem Gerät blockiert werden.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>file_publish_cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>popups_dropped</source>
        <translation>Diese Regel gilt nicht mehr</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>Blockierung</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>Heute zum Schließen aufgefordert</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>Bisher wurde kein Fenster zum Schließen aufgefordert.</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>Zum Schließen aufgeforderte Fenster</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>Der Dienst hat nicht geantwortet. Nichts hat sich geändert.</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>Ein Pop-up-Fenster von %1 wurde gebeten, sich zu schließen. Hier drücken, um den Grund zu sehen.</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>Aus: Es wurde ausgeschaltet</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>Aus: Dieses Gerät ist nicht registriert</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>Ältere anzeigen (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>Ein, geltende Regeln: %1</translation>
    </message>
    <message>
        <source>popups_pick_busy</source>
        <translation>Die letzte Meldung ist noch nicht beantwortet. Bitte versuchen Sie es in einer Minute erneut.</translation>
    </message>
    <message>
        <source>popups_pick_list</source>
        <translation>Aus einer Liste wählen</translation>
    </message>
    <message>
        <source>popups_pick_point</source>
        <translation>Darauf zeigen</translation>
    </message>
    <message>
        <source>popups_pick_sentence</source>
        <translation>Ihr Administrator sieht das Bild des Fensters und kann es künftig schließen lassen.</translation>
    </message>
    <message>
        <source>popups_pick_title</source>
        <translation>Ein Pop-up-Fenster melden</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>Regel: Fensterklasse %1, Produkt %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>Zum Schließen aufgefordert, noch offen</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>Unerwünschte Pop-up-Fenster schließen</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>Darum kann gebeten werden, sobald das Gerät registriert und sein Dienst erreichbar ist.</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>Der Dienst Ihrer Organisation entscheidet. Der Schalter zeigt, was er sagt.</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>Der Dienst wurde gebeten und hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1, %2 Mal</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>Der Dienst hat noch nichts mitgeteilt</translation>
    </message>
    <message>
        <source>popups_windows_none</source>
        <translation>Es ist kein Fenster offen, das gemeldet werden kann.</translation>
    </message>
    <message>
        <source>popups_windows_title</source>
        <translation>Welches Fenster?</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>Das war falsch</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>Das war falsch: %1, %2</translation>
    </message>
    <message>
        <source>report_click_pop_ups_block</source>
        <translation>Klicken Sie auf das Pop-up-Fenster, das Sie melden möchten</translation>
    </message>
    <message>
        <source>str_pop_ups_</source>
        <translation>Pop-up-Fenster von</translation>
    </message>
    <message>
        <source>str_report</source>
        <translation>Melden</translation>
    </message>
    <message>
        <source>str_this_pop_ups_no_support</source>
        <translation>Dieses Fenster kann nicht gemeldet werden</translation>
    </message>
</context>
</TS>

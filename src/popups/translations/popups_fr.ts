<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>Vous voyez ici quelles fenêtres contextuelles sont bloquées sur cet appareil.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>file_publish_cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>popups_dropped</source>
        <translation>Cette règle n’est plus en vigueur</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>Blocage</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>Priées de se fermer aujourd’hui</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>Aucune fenêtre n’a encore été priée de se fermer.</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>Fenêtres priées de se fermer</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>Le service n’a pas répondu. Rien n’a changé.</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>Une fenêtre contextuelle de %1 a été priée de se fermer. Appuyez ici pour savoir pourquoi.</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>Désactivé : la fonction a été désactivée</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>Désactivé : cet appareil n’est pas inscrit</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>Afficher les plus anciennes (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>Activé, règles en vigueur : %1</translation>
    </message>
    <message>
        <source>popups_pick_busy</source>
        <translation>Le dernier signalement n’a pas encore reçu de réponse. Réessayez dans une minute.</translation>
    </message>
    <message>
        <source>popups_pick_list</source>
        <translation>Choisir dans une liste</translation>
    </message>
    <message>
        <source>popups_pick_point</source>
        <translation>La désigner à l’écran</translation>
    </message>
    <message>
        <source>popups_pick_sentence</source>
        <translation>Votre administrateur voit l’image de la fenêtre et pourra ensuite la faire fermer.</translation>
    </message>
    <message>
        <source>popups_pick_title</source>
        <translation>Signaler une fenêtre contextuelle</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>Règle : classe de fenêtre %1, produit %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>Priée de se fermer, encore ouverte</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>Fermer les fenêtres contextuelles indésirables</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>Vous pourrez le demander lorsque l’appareil sera inscrit et son service joignable.</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>Le service de votre organisation décide. Le commutateur montre sa réponse.</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>La demande a été transmise au service, qui n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1, %2 fois</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>Le service n’a encore rien indiqué</translation>
    </message>
    <message>
        <source>popups_windows_none</source>
        <translation>Aucune fenêtre ouverte ne peut être signalée.</translation>
    </message>
    <message>
        <source>popups_windows_title</source>
        <translation>Quelle fenêtre ?</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>C’était une erreur</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>C’était une erreur : %1, %2</translation>
    </message>
    <message>
        <source>report_click_pop_ups_block</source>
        <translation>Cliquez sur la fenêtre contextuelle à signaler</translation>
    </message>
    <message>
        <source>str_pop_ups_</source>
        <translation>Fenêtre contextuelle de</translation>
    </message>
    <message>
        <source>str_report</source>
        <translation>Signaler</translation>
    </message>
    <message>
        <source>str_this_pop_ups_no_support</source>
        <translation>Cette fenêtre ne peut pas être signalée</translation>
    </message>
</context>
</TS>

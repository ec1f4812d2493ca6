<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>La partie visible de la gestion de l’appareil. Elle fonctionne avec un service présent sur cet appareil.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>À propos de Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>Le format de l’heure a été défini.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>L’écran a été verrouillé.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>Un message ou un fichier est arrivé de l’administrateur.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>Ce que l’organisation peut faire a été modifié.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>L’appareil n’est plus géré par l’organisation.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>L’écran a été déverrouillé.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>Le fond d’écran a été défini.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>Fenêtres d’autres programmes invitées à se fermer : %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>Rien jusqu’ici.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>Afficher les plus anciens (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>Ce qui a été fait ici</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>Adresses réseau</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>Aucun programme de cet appareil ne lit les adresses « %1 ».</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>Le service de cet appareil est injoignable : les chaînes ne peuvent être ni lancées ni arrêtées pour l’instant.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>Votre organisation ne propose aucune chaîne pour le moment.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>Les chaînes s’affichent ici dès que cet appareil est inscrit.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>Cette liste date d’avant la perte de la connexion.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>En lecture</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>L’adresse de cette chaîne ne peut pas être lue. Prévenez votre administrateur.</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>Les chaînes que votre organisation envoie à cet écran se lancent et s’arrêtent ici.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>La chaîne est arrêtée. Si le lecteur est encore ouvert, fermez-le vous-même.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Chaînes en direct</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>Chaîne %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>Le service n’a pas encore indiqué les chaînes disponibles.</translation>
    </message>
    <message>
        <source>may_control</source>
        <translation>%1 peut utiliser la souris et le clavier de cet appareil.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>%1 peut définir le format de l’heure et le fond d’écran.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>%1 peut savoir où se trouve cet appareil.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>%1 peut verrouiller cet écran et les paramètres du système.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>%1 peut afficher ici des messages et des images et vous envoyer des fichiers, dont aucun ne s’ouvre de lui-même.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>Aucune organisation ne gère cet appareil : personne ne peut rien y faire au moyen de ce programme.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>%1 ne peut pas utiliser la souris et le clavier de cet appareil.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>Ce programme n’envoie aucun de vos fichiers ni images, sauf si vous les envoyez vous-même dans un rapport.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>%1 ne peut pas savoir où se trouve cet appareil.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>Ce programme n’enregistre pas ce que vous tapez dans d’autres programmes.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>%1 ne peut pas voir ce qui est affiché à l’écran.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>%1 peut faire fermer les fenêtres d’autres programmes que ses règles désignent, et en est informée.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>%1 a aussi obtenu « %2 », que ce programme ne connaît pas.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>%1 peut voir ce qui est affiché à l’écran.</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Vous voyez ici comment cet appareil atteint le service de gestion.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>L’apparence de ce programme et sa langue, et ce que votre organisation peut faire sur cet appareil.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>Très grande</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>settings_theme_system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>transparency_title</source>
        <translation>Ce que cela signifie</translation>
    </message>
</context>
</TS>

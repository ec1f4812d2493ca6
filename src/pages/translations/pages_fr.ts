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
</context>
</TS>

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
        <source>live_sentence</source>
        <translation>Les chaînes que votre organisation envoie à cet écran se lancent et s’arrêtent ici.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>Chaînes en direct</translation>
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
        <source>page_note_state_only</source>
        <translation>Pour l’instant, cette page ne fait qu’afficher l’état actuel.</translation>
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

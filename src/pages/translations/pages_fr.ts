<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_copy</source>
        <translation>Tout copier</translation>
    </message>
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
        <source>fact_account</source>
        <translation>Compte de l’administrateur</translation>
    </message>
    <message>
        <source>fact_user</source>
        <translation>Utilisateur connecté</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>holds_unknown</source>
        <translation>%1 a aussi verrouillé « %2 », que ce programme ne connaît pas.</translation>
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
        <source>licences_sentence</source>
        <translation>Ce programme et ce qui l’accompagne, chacun sous sa propre licence.</translation>
    </message>
    <message>
        <source>licences_title</source>
        <translation>Licences</translation>
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
        <source>network_adapter_none</source>
        <translation>Aucune carte réseau n’est connectée.</translation>
    </message>
    <message>
        <source>network_adapter_none_advice</source>
        <translation>Branchez le câble réseau ou activez le Wi-Fi.</translation>
    </message>
    <message>
        <source>network_adapter_up</source>
        <translation>En service : %1.</translation>
    </message>
    <message>
        <source>network_address_found</source>
        <translation>Cet appareil a %1.</translation>
    </message>
    <message>
        <source>network_address_none</source>
        <translation>Le réseau n’a pas donné d’adresse à cet appareil.</translation>
    </message>
    <message>
        <source>network_address_none_advice</source>
        <translation>Déconnectez-vous du réseau, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>network_cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>network_cancelled</source>
        <translation>Non vérifié, car la vérification a été annulée.</translation>
    </message>
    <message>
        <source>network_certificate_advice</source>
        <translation>Utilisez un autre réseau et n’entrez pas de mot de passe sur celui-ci ; quelqu’un pourrait écouter.</translation>
    </message>
    <message>
        <source>network_certificate_bad</source>
        <translation>%1 n’a pas pu prouver son identité : %2</translation>
    </message>
    <message>
        <source>network_certificate_good</source>
        <translation>%1 a prouvé son identité.</translation>
    </message>
    <message>
        <source>network_certificate_none</source>
        <translation>Non vérifié : ce serveur est utilisé sans chiffrement.</translation>
    </message>
    <message>
        <source>network_certificate_unread</source>
        <translation>%1 n’a pas établi de connexion sûre.</translation>
    </message>
    <message>
        <source>network_check_failed</source>
        <translation>La vérification a échoué à « %1 ».</translation>
    </message>
    <message>
        <source>network_check_no_server</source>
        <translation>Aucun serveur de l’organisation n’est indiqué sur cet appareil ; seule la sortie de ce réseau a été vérifiée.</translation>
    </message>
    <message>
        <source>network_check_passed</source>
        <translation>La vérification n’a trouvé aucun obstacle.</translation>
    </message>
    <message>
        <source>network_clock_advice</source>
        <translation>Réglez l’horloge ; si elle est fausse, aucune connexion sûre n’est possible.</translation>
    </message>
    <message>
        <source>network_clock_right</source>
        <translation>L’horloge est d’accord avec celle du serveur.</translation>
    </message>
    <message>
        <source>network_clock_unknown</source>
        <translation>Non vérifié : le serveur n’a pas donné l’heure.</translation>
    </message>
    <message>
        <source>network_clock_wrong</source>
        <translation>L’horloge de cet appareil diffère de %1 de celle du serveur.</translation>
    </message>
    <message>
        <source>network_days</source>
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>network_gateway_found</source>
        <translation>La sortie de ce réseau est %1.</translation>
    </message>
    <message>
        <source>network_gateway_none</source>
        <translation>Aucune sortie de ce réseau n’est connue.</translation>
    </message>
    <message>
        <source>network_gateway_none_advice</source>
        <translation>Redémarrez le routeur ou connectez-vous à un autre réseau.</translation>
    </message>
    <message>
        <source>network_hours</source>
        <translation>%1 heures</translation>
    </message>
    <message>
        <source>network_link_other_way</source>
        <translation>Il passe peut-être par un autre chemin ou ne l’a pas encore remarqué.</translation>
    </message>
    <message>
        <source>network_link_said</source>
        <translation>Le service dit de la liaison avec l’organisation : « %1 ».</translation>
    </message>
    <message>
        <source>network_link_unknown</source>
        <translation>L’état de la liaison avec l’organisation est inconnu, car le service de cet appareil ne fonctionne pas.</translation>
    </message>
    <message>
        <source>network_minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>network_name_advice</source>
        <translation>Vérifiez le serveur de noms de ce réseau, ou essayez un autre réseau.</translation>
    </message>
    <message>
        <source>network_name_by_proxy</source>
        <translation>Le proxy se charge des noms.</translation>
    </message>
    <message>
        <source>network_name_found</source>
        <translation>%1 est connu sous %2.</translation>
    </message>
    <message>
        <source>network_name_not_found</source>
        <translation>Le nom %1 n’a pas été trouvé.</translation>
    </message>
    <message>
        <source>network_name_not_needed</source>
        <translation>Le serveur est indiqué par son adresse ; il n’y a pas de nom à résoudre.</translation>
    </message>
    <message>
        <source>network_no_server</source>
        <translation>Non vérifié : aucun serveur n’est indiqué sur cet appareil.</translation>
    </message>
    <message>
        <source>network_pipe_advice</source>
        <translation>Redémarrez cet appareil.</translation>
    </message>
    <message>
        <source>network_pipe_down</source>
        <translation>Le service de cet appareil ne fonctionne pas.</translation>
    </message>
    <message>
        <source>network_pipe_up</source>
        <translation>Le service de cet appareil fonctionne.</translation>
    </message>
    <message>
        <source>network_proxy_advice</source>
        <translation>Vérifiez le proxy dans les réglages du système.</translation>
    </message>
    <message>
        <source>network_proxy_none</source>
        <translation>Aucun proxy n’est utilisé.</translation>
    </message>
    <message>
        <source>network_proxy_not_found</source>
        <translation>Le nom du proxy %1 est inconnu.</translation>
    </message>
    <message>
        <source>network_proxy_not_reached</source>
        <translation>Le proxy %1 ne répond pas.</translation>
    </message>
    <message>
        <source>network_proxy_own_advice</source>
        <translation>Ce proxy est défini dans la configuration du programme ; c’est là qu’il faut le corriger.</translation>
    </message>
    <message>
        <source>network_proxy_reached</source>
        <translation>Le proxy %1 est joignable.</translation>
    </message>
    <message>
        <source>network_seconds</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>Vous voyez ici comment cet appareil atteint le service de gestion.</translation>
    </message>
    <message>
        <source>network_server_advice</source>
        <translation>Le serveur est peut-être arrêté, ou un pare-feu fait obstacle. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>network_server_by_proxy</source>
        <translation>Le proxy ne laisse pas cet appareil atteindre %1.</translation>
    </message>
    <message>
        <source>network_server_by_proxy_advice</source>
        <translation>Le proxy a besoin d’une règle pour cette adresse ou demande un nom d’utilisateur.</translation>
    </message>
    <message>
        <source>network_server_reached</source>
        <translation>%1 accepte les connexions.</translation>
    </message>
    <message>
        <source>network_server_refused</source>
        <translation>%1 refuse les connexions.</translation>
    </message>
    <message>
        <source>network_server_silent</source>
        <translation>%1 ne répond pas.</translation>
    </message>
    <message>
        <source>network_sign_in_advice</source>
        <translation>Ouvrez un navigateur et connectez-vous au réseau.</translation>
    </message>
    <message>
        <source>network_sign_in_needed</source>
        <translation>Ce réseau demande d’abord de se connecter, sur %1.</translation>
    </message>
    <message>
        <source>network_sign_in_none</source>
        <translation>Aucune page de connexion ne fait obstacle.</translation>
    </message>
    <message>
        <source>network_skipped</source>
        <translation>Non vérifié, car une étape précédente a échoué.</translation>
    </message>
    <message>
        <source>network_start</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>network_state_failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>network_state_not_checked</source>
        <translation>Non vérifié</translation>
    </message>
    <message>
        <source>network_state_passed</source>
        <translation>En ordre</translation>
    </message>
    <message>
        <source>network_state_running</source>
        <translation>Vérification …</translation>
    </message>
    <message>
        <source>network_state_waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>network_step_adapter</source>
        <translation>Carte réseau</translation>
    </message>
    <message>
        <source>network_step_address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>network_step_certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>network_step_clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>network_step_gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <source>network_step_name</source>
        <translation>Résolution de noms</translation>
    </message>
    <message>
        <source>network_step_pipe</source>
        <translation>Service de cet appareil</translation>
    </message>
    <message>
        <source>network_step_proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>network_step_server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>network_step_sign_in</source>
        <translation>Page de connexion</translation>
    </message>
    <message>
        <source>network_tell_administrator</source>
        <translation>Si cela ne suffit pas, prévenez l’administrateur de votre organisation.</translation>
    </message>
    <message>
        <source>network_tell_support</source>
        <translation>Si cela ne suffit pas, prévenez %1.</translation>
    </message>
    <message>
        <source>network_timed_out</source>
        <translation>Pas de résultat en cinq secondes.</translation>
    </message>
    <message>
        <source>network_timed_out_advice</source>
        <translation>Le réseau est peut-être surchargé. Vérifiez à nouveau.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>network_verdict_cancelled</source>
        <translation>La vérification a été annulée.</translation>
    </message>
    <message>
        <source>network_verdict_running</source>
        <translation>Le chemin vers les serveurs de votre organisation est en cours de vérification …</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>settings_not_kept</source>
        <translation>Votre choix n’a pas pu être enregistré ; il vaut jusqu’à la fin du programme.</translation>
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
    <message>
        <source>support_mail</source>
        <translation>Écrire un courriel</translation>
    </message>
    <message>
        <source>support_nobody</source>
        <translation>Aucun contact n’est indiqué sur cet appareil. Adressez-vous à l’administrateur de votre organisation.</translation>
    </message>
    <message>
        <source>support_page</source>
        <translation>Ouvrir la page web</translation>
    </message>
    <message>
        <source>support_title</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>support_trace_hint</source>
        <translation>La trace de la liaison montre à la personne qui vous aide quels messages ont circulé, sans leur contenu.</translation>
    </message>
    <message>
        <source>text_copied</source>
        <translation>Copié.</translation>
    </message>
    <message>
        <source>text_copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>text_exists</source>
        <translation>« %1 » existe déjà. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>text_not_saved</source>
        <translation>« %1 » n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>text_save</source>
        <translation>Enregistrer …</translation>
    </message>
    <message>
        <source>text_save_type</source>
        <translation>Fichier texte</translation>
    </message>
    <message>
        <source>text_saved</source>
        <translation>Enregistré sous « %1 ».</translation>
    </message>
    <message>
        <source>trace_sentence</source>
        <translation>Les 500 derniers messages entre ce programme et le service de cet appareil : heure, sens, clé, nom et taille. Leur contenu n’est pas conservé.</translation>
    </message>
    <message>
        <source>trace_title</source>
        <translation>Trace de la liaison</translation>
    </message>
    <message>
        <source>update_available</source>
        <translation>La version %1 est disponible.</translation>
    </message>
    <message>
        <source>update_available_size</source>
        <translation>La version %1 est disponible (%2).</translation>
    </message>
    <message>
        <source>update_bytes</source>
        <translation>Téléchargement : %1 jusqu’ici</translation>
    </message>
    <message>
        <source>update_check</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>update_failed</source>
        <translation>La mise à jour a échoué.</translation>
    </message>
    <message>
        <source>update_forced</source>
        <translation>Votre organisation demande qu’elle soit installée.</translation>
    </message>
    <message>
        <source>update_later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>update_no_answer</source>
        <translation>Le service a reçu la demande de mise à jour et ne répond pas depuis une minute.</translation>
    </message>
    <message>
        <source>update_no_service</source>
        <translation>Le service de cet appareil ne fonctionne pas ; lui seul peut chercher des mises à jour.</translation>
    </message>
    <message>
        <source>update_now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>update_old</source>
        <translation>La liaison avec le service a été coupée depuis ; voici ce qu’il disait à %1.</translation>
    </message>
    <message>
        <source>update_percent</source>
        <translation>Téléchargement : %1 %</translation>
    </message>
    <message>
        <source>update_ready</source>
        <translation>La mise à jour est téléchargée. Le service l’installe.</translation>
    </message>
    <message>
        <source>update_requested</source>
        <translation>La mise à jour a été demandée au service. En attente …</translation>
    </message>
    <message>
        <source>update_retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>update_silent</source>
        <translation>Le service l’installe de lui-même ; il n’y a rien à faire.</translation>
    </message>
    <message>
        <source>update_stalled</source>
        <translation>Rien n’a bougé depuis une minute.</translation>
    </message>
    <message>
        <source>update_title</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>update_told</source>
        <translation>État : %1</translation>
    </message>
    <message>
        <source>update_unknown</source>
        <translation>En attente du service …</translation>
    </message>
    <message>
        <source>update_up_to_date</source>
        <translation>Ce programme est à jour.</translation>
    </message>
</context>
</TS>

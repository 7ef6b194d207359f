<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>StoredText</name>
    <message>
        <source>%1 camera: someone you don&apos;t know</source>
        <translation>Caméra %1&#xa0;: personne inconnue</translation>
    </message>
    <message>
        <source>You approved the launch</source>
        <translation>Vous avez approuvé le décollage</translation>
    </message>
    <message>
        <source>Airborne at %1 m — heading to the visitor</source>
        <translation>En vol à %1&#xa0;m – cap sur le visiteur</translation>
    </message>
    <message>
        <source>Following at %1 m</source>
        <translation>Suivi à %1&#xa0;m</translation>
    </message>
    <message>
        <source>Following — handed over to DJI tracking</source>
        <translation>Suivi – relais passé au suivi DJI</translation>
    </message>
    <message>
        <source>At your boundary — holding inside the %1 m buffer</source>
        <translation>À votre limite – maintien dans la marge de %1&#xa0;m</translation>
    </message>
    <message>
        <source>Gust of %1 km/h — recovered and back on station</source>
        <translation>Rafale de %1&#xa0;km/h – stabilisé et de retour en position</translation>
    </message>
    <message>
        <source>Visitor has crossed your boundary</source>
        <translation>Le visiteur a franchi votre limite</translation>
    </message>
    <message>
        <source>Visitor has left your grounds</source>
        <translation>Le visiteur a quitté votre terrain</translation>
    </message>
    <message>
        <source>Holding position at %1 m</source>
        <translation>Position maintenue à %1&#xa0;m</translation>
    </message>
    <message>
        <source>Following again</source>
        <translation>Reprise du suivi</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Retour à la base</translation>
    </message>
    <message>
        <source>Coming home — you asked</source>
        <translation>Retour à votre demande</translation>
    </message>
    <message>
        <source>Battery below %1% — coming home</source>
        <translation>Batterie sous %1&#xa0;% – retour à la base</translation>
    </message>
    <message>
        <source>Landing now where it is — you asked</source>
        <translation>Atterrissage immédiat sur place, à votre demande</translation>
    </message>
    <message>
        <source>Over the pad — landing</source>
        <translation>Au-dessus de la base – atterrissage</translation>
    </message>
    <message>
        <source>Landed and docked</source>
        <translation>Posé sur sa base</translation>
    </message>
    <message>
        <source>Landed away from the pad — please collect it</source>
        <translation>Posé hors de sa base – veuillez le récupérer</translation>
    </message>
    <message>
        <source>System armed</source>
        <translation>Système armé</translation>
    </message>
    <message>
        <source>System disarmed — detections will be logged only</source>
        <translation>Système désarmé – détections consignées seulement</translation>
    </message>
    <message>
        <source>Visitor left your grounds</source>
        <translation>Visiteur parti de chez vous</translation>
    </message>
    <message>
        <source>You sent the drone home</source>
        <translation>Rentré à votre demande</translation>
    </message>
    <message>
        <source>Came home on low battery</source>
        <translation>Rentré, batterie faible</translation>
    </message>
    <message>
        <source>You landed the drone</source>
        <translation>Posé à votre demande</translation>
    </message>
    <message>
        <source>You ignored the alert</source>
        <translation>Vous avez ignoré l’alerte</translation>
    </message>
    <message>
        <source>Alert expired — drone stayed docked</source>
        <translation>Alerte expirée – drone au sol</translation>
    </message>
    <message>
        <source>Logged while disarmed</source>
        <translation>Consigné, système désarmé</translation>
    </message>
    <message>
        <source>Too windy to fly — drone stayed docked</source>
        <translation>Trop de vent – drone au sol</translation>
    </message>
    <message>
        <source>Unknown person</source>
        <translation>Personne inconnue</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Driveway</source>
        <translation>Allée</translation>
    </message>
    <message>
        <source>Front lawn</source>
        <translation>Pelouse avant</translation>
    </message>
    <message>
        <source>East garden</source>
        <translation>Jardin est</translation>
    </message>
</context>
<context>
    <name>velmora::AboutCard</name>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Velmora %1</source>
        <translation>Velmora %1</translation>
    </message>
    <message>
        <source>Watches your grounds, asks before it flies, and keeps a record of every visit.</source>
        <translation>Veille sur votre terrain, demande votre accord avant de voler et garde une trace de chaque visite.</translation>
    </message>
    <message>
        <source>Set in Inter, under the SIL Open Font License.</source>
        <translation>Composé en Inter, sous la SIL Open Font License.</translation>
    </message>
</context>
<context>
    <name>velmora::ActiveBanner</name>
    <message>
        <source>Open live flight →</source>
        <translation>Vol en direct →</translation>
    </message>
</context>
<context>
    <name>velmora::ActiveFilters</name>
    <message>
        <source>%1 %2</source>
        <comment>weekday, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 to %3</source>
        <comment>weekday, times</comment>
        <translation>%1 de %2 à %3</translation>
    </message>
    <message>
        <source>Remove this filter</source>
        <translation>Retirer ce filtre</translation>
    </message>
    <message>
        <source>Active filters</source>
        <translation>Filtres actifs</translation>
    </message>
    <message>
        <source>Past this place</source>
        <translation>Passées par cet endroit</translation>
    </message>
    <message>
        <source>Past one place</source>
        <translation>Par un même endroit</translation>
    </message>
</context>
<context>
    <name>velmora::ActivityList</name>
    <message>
        <source>All activity →</source>
        <translation>Toute l’activité →</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Activité récente</translation>
    </message>
    <message>
        <source>Nothing yet. When a camera spots someone you don&apos;t know, it appears here.</source>
        <translation>Rien pour l’instant. Quand une caméra repère un inconnu, la visite apparaît ici.</translation>
    </message>
</context>
<context>
    <name>velmora::AlertInset</name>
    <message>
        <source>%1 m from the pad</source>
        <translation>à %1&#xa0;m de la base</translation>
    </message>
    <message>
        <source>inside your boundary</source>
        <translation>dans votre limite</translation>
    </message>
    <message>
        <source>outside your boundary</source>
        <translation>hors de votre limite</translation>
    </message>
</context>
<context>
    <name>velmora::AnswerPanel</name>
    <message>
        <source>You must be able to see the drone while it flies. Nothing launches without your yes.</source>
        <translation>Vous devez pouvoir voir le drone pendant le vol. Rien ne décolle sans votre accord.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Lancer le drone</translation>
    </message>
    <message>
        <source>velmora is silent — this picture is %1 old</source>
        <translation>velmora ne répond pas – image d’il y a %1</translation>
    </message>
</context>
<context>
    <name>velmora::App</name>
    <message>
        <source>Velmora</source>
        <translation>Velmora</translation>
    </message>
</context>
<context>
    <name>velmora::ApprovalMetrics</name>
    <message>
        <source>Match</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Expires in</source>
        <translation>Reste</translation>
    </message>
    <message>
        <source>% unknown</source>
        <translation>% inconnu</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>velmora::ApprovalOverlay</name>
    <message>
        <source>Someone you don&apos;t know is at the %1 camera.</source>
        <translation>Une personne inconnue est devant la caméra %1.</translation>
    </message>
    <message>
        <source>Someone you don&apos;t know is at the grounds.</source>
        <translation>Une personne inconnue est près de chez vous.</translation>
    </message>
    <message>
        <source>Launch the drone to keep an eye on them? It will fly at %1 m, follow about %2 m back, stay inside your boundary and come home on its own.</source>
        <translation>Lancer le drone pour la garder à l’œil&#x202f;? Il volera à %1&#xa0;m de hauteur, suivra à environ %2&#xa0;m, restera à l’intérieur de votre limite et rentrera tout seul.</translation>
    </message>
</context>
<context>
    <name>velmora::ApprovalPicture</name>
    <message>
        <source>Grounds</source>
        <translation>Terrain</translation>
    </message>
    <message>
        <source>Show the picture smaller</source>
        <translation>Réduire l’image</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Agrandir l’image</translation>
    </message>
</context>
<context>
    <name>velmora::ArmSwitch</name>
    <message>
        <source>Disarm</source>
        <translation>Désarmer</translation>
    </message>
    <message>
        <source>Arm system</source>
        <translation>Armer le système</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>Armed</source>
        <translation>Armé</translation>
    </message>
    <message>
        <source>Disarmed</source>
        <translation>Désarmé</translation>
    </message>
    <message>
        <source>velmora itself is armed and disarmed at the server</source>
        <translation>velmora s’arme et se désarme sur le serveur</translation>
    </message>
</context>
<context>
    <name>velmora::BoundaryChartView</name>
    <message>
        <source>Metres inside your boundary</source>
        <translation>Mètres à l’intérieur de votre limite</translation>
    </message>
</context>
<context>
    <name>velmora::CameraCard</name>
    <message>
        <source>Faces it doesn&apos;t recognise</source>
        <translation>Visages non reconnus</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recommandé</translation>
    </message>
    <message>
        <source>Any person, even without a face</source>
        <translation>Toute personne, visage vu ou non</translation>
    </message>
    <message>
        <source>More alerts at night</source>
        <translation>Plus d’alertes la nuit</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>No alerts in the history</source>
        <translation>Aucune alerte dans l’historique</translation>
    </message>
    <message>
        <source>1 alert in the history</source>
        <translation>1&#xa0;alerte dans l’historique</translation>
    </message>
    <message>
        <source>%1 alerts in the history</source>
        <translation>%1&#xa0;alertes dans l’historique</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Image&#xa0;: %1</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <translation>Dernière image %1</translation>
    </message>
</context>
<context>
    <name>velmora::CamerasView</name>
    <message>
        <source>Cameras · UniFi Protect</source>
        <translation>Caméras · UniFi Protect</translation>
    </message>
    <message>
        <source>What sets off *an alert*.</source>
        <translation>Ce qui déclenche *une alerte*.</translation>
    </message>
    <message>
        <source>Each camera can alert on faces it doesn&apos;t recognise, and optionally on any person it sees. People you&apos;ve named in UniFi Protect never trigger the drone.</source>
        <translation>Chaque caméra peut alerter sur les visages non reconnus et, en option, sur toute personne vue. Les personnes que vous avez nommées dans UniFi Protect ne font jamais intervenir le drone.</translation>
    </message>
    <message>
        <source>No cameras yet</source>
        <translation>Pas encore de caméra</translation>
    </message>
    <message>
        <source>Waiting for velmora</source>
        <translation>En attente de velmora</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Réglages de connexion</translation>
    </message>
    <message>
        <source>velmora&apos;s config has no cameras, so nobody on your grounds is noticed and you get no alerts. Add them there, and they appear here.</source>
        <translation>La configuration de velmora ne contient aucune caméra&#xa0;: personne n’est remarqué sur votre terrain et vous ne recevez aucune alerte. Ajoutez-en là-bas, elles apparaîtront ici.</translation>
    </message>
    <message>
        <source>Your cameras appear here as soon as velmora answers.</source>
        <translation>Vos caméras apparaîtront ici dès que velmora répondra.</translation>
    </message>
</context>
<context>
    <name>velmora::CommandMenus</name>
    <message>
        <source>Velmora</source>
        <translation>Velmora</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>À propos de Velmora</translation>
    </message>
    <message>
        <source>Quit Velmora</source>
        <translation>Quitter Velmora</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Démo</translation>
    </message>
    <message>
        <source>Show welcome</source>
        <translation>Afficher l’accueil</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drone</translation>
    </message>
    <message>
        <source>Launch (approve)</source>
        <translation>Lancer (approuver)</translation>
    </message>
    <message>
        <source>Ignore alert</source>
        <translation>Ignorer l’alerte</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Maintenir la position</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Rentrer à la base</translation>
    </message>
</context>
<context>
    <name>velmora::ConnectionForm</name>
    <message>
        <source>Demo mode (built-in simulation)</source>
        <translation>Mode démo (simulation intégrée)</translation>
    </message>
    <message>
        <source>velmora on my network</source>
        <translation>velmora sur mon réseau</translation>
    </message>
    <message>
        <source>The computer running velmora serves the app API described in docs/APP_API.md.</source>
        <translation>L’ordinateur qui exécute velmora fournit l’API décrite dans docs/APP_API.md.</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Not stored: a port is a whole number from 1 to 65535.</source>
        <translation>Non enregistré&#xa0;: un port est un nombre entier de 1 à 65535.</translation>
    </message>
</context>
<context>
    <name>velmora::DesktopNotifier</name>
    <message>
        <source>Open Velmora</source>
        <translation>Ouvrir Velmora</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Lancer le drone</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
</context>
<context>
    <name>velmora::DroneBadge</name>
    <message>
        <source>No picture yet</source>
        <translation>Pas encore d’image</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>battery %1</source>
        <translation>batterie %1</translation>
    </message>
</context>
<context>
    <name>velmora::FlightControls</name>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Maintenir la position</translation>
    </message>
    <message>
        <source>Resume following</source>
        <translation>Reprendre le suivi</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Rentrer à la base</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Atterrir maintenant</translation>
    </message>
    <message>
        <source>Simulate a visitor</source>
        <translation>Simuler un visiteur</translation>
    </message>
    <message>
        <source>Approve or ignore the alert to continue.</source>
        <translation>Approuvez ou ignorez l’alerte pour continuer.</translation>
    </message>
    <message>
        <source>Nothing to control — the drone launches only after you approve an alert.</source>
        <translation>Rien à piloter – le drone ne décolle qu’une fois que vous avez approuvé une alerte.</translation>
    </message>
</context>
<context>
    <name>velmora::HeatMap</name>
    <message>
        <source>The arrow keys move a mark, Enter shows the visits that passed within 2 m of it.</source>
        <translation>Les flèches déplacent un repère, Entrée affiche les visites passées à moins de 2&#xa0;m de celui-ci.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryFilters</name>
    <message>
        <source>Search the history</source>
        <translation>Rechercher dans l’historique</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Which visits</source>
        <translation>Quelles visites</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Flown</source>
        <translation>Avec vol</translation>
    </message>
    <message>
        <source>Stayed docked</source>
        <translation>Sans vol</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Span of time</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Demo visits</source>
        <translation>Visites de démo</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7&#xa0;jours</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;jours</translation>
    </message>
    <message>
        <source>A year</source>
        <translation>Un an</translation>
    </message>
    <message>
        <source>All time</source>
        <translation>Toute période</translation>
    </message>
    <message>
        <source>With demo</source>
        <translation>Avec démo</translation>
    </message>
    <message>
        <source>No demo</source>
        <translation>Sans démo</translation>
    </message>
    <message>
        <source>Only demo</source>
        <translation>Démo seule</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>text that was searched</comment>
        <translation>« %1 »</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryList</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Visits</source>
        <translation>Visites</translation>
    </message>
    <message>
        <source>Nothing yet. When a camera spots someone you don&apos;t know, it appears here.</source>
        <translation>Rien pour l’instant. Quand une caméra repère un inconnu, la visite apparaît ici.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>No visits match.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Clear demo history</source>
        <translation>Vider l’historique démo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Visit deleted.</source>
        <translation>Visite supprimée.</translation>
    </message>
    <message>
        <source>Every visit,
*on record*.</source>
        <translation>Chaque visite,
*consignée*.</translation>
    </message>
    <message>
        <source>What the history shows</source>
        <translation>Contenu de l’historique</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Tendances</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryModel</name>
    <message>
        <source>%1, demo</source>
        <translation>%1, démo</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryView</name>
    <message>
        <source>No visit to replay yet</source>
        <translation>Pas encore de visite à revoir</translation>
    </message>
    <message>
        <source>Every alert ends as a record here, with its paths on the map, its log and how it ended.</source>
        <translation>Chaque alerte devient ici une fiche, avec ses trajets sur la carte, son journal et son issue.</translation>
    </message>
    <message>
        <source>Simulate a visitor</source>
        <translation>Simuler un visiteur</translation>
    </message>
    <message>
        <source>Record as JSON…</source>
        <translation>Fiche en JSON…</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Paths and notices as CSV…</source>
        <translation>Trajets et messages en CSV…</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Map as a picture…</source>
        <translation>Carte en image…</translation>
    </message>
    <message>
        <source>PNG (*.png)</source>
        <translation>PNG (*.png)</translation>
    </message>
    <message>
        <source>The list as CSV…</source>
        <translation>Liste en CSV…</translation>
    </message>
    <message>
        <source>Visit report: %1, %2</source>
        <comment>outcome, times</comment>
        <translation>Rapport de visite&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report (PDF)…</source>
        <translation>Rapport (PDF)…</translation>
    </message>
    <message>
        <source>Report of the list (PDF)…</source>
        <translation>Rapport de la liste (PDF)…</translation>
    </message>
    <message>
        <source>Report of the visits</source>
        <translation>Rapport des visites</translation>
    </message>
</context>
<context>
    <name>velmora::LandConfirmation</name>
    <message>
        <source>Land the drone where it is now?</source>
        <translation>Faire atterrir le drone là où il est&#x202f;?</translation>
    </message>
    <message>
        <source>It will come down on the spot, not on its pad. Use this only if something is wrong.</source>
        <translation>Il descendra sur place, pas sur sa base. À n’utiliser qu’en cas de problème.</translation>
    </message>
    <message>
        <source>Keep flying</source>
        <translation>Continuer le vol</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Atterrir maintenant</translation>
    </message>
    <message>
        <source>%1 m up · %2 m from the pad</source>
        <translation>Hauteur %1&#xa0;m · à %2&#xa0;m de la base</translation>
    </message>
</context>
<context>
    <name>velmora::LastDays</name>
    <message>
        <source>Patterns →</source>
        <translation>Tendances →</translation>
    </message>
    <message>
        <source>The last 30 days</source>
        <translation>Les 30&#xa0;derniers jours</translation>
    </message>
</context>
<context>
    <name>velmora::LimitsSketch</name>
    <message>
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message>
        <source>%1 up, %2 back,</source>
        <translation>%1 de haut, %2 d’écart,</translation>
    </message>
    <message>
        <source>%1 inside your boundary</source>
        <translation>%1 dans votre limite</translation>
    </message>
</context>
<context>
    <name>velmora::LinkBadge</name>
    <message>
        <source>Demo</source>
        <translation>Démo</translation>
    </message>
</context>
<context>
    <name>velmora::LiveRail</name>
    <message>
        <source>Nothing logged yet. Notices from the next flight appear here.</source>
        <translation>Rien de consigné pour l’instant. Les messages du prochain vol apparaîtront ici.</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Journal de vol</translation>
    </message>
</context>
<context>
    <name>velmora::LiveView</name>
    <message>
        <source>Waiting for *velmora*</source>
        <translation>En attente de *velmora*</translation>
    </message>
    <message>
        <source>The drone is *on its pad*</source>
        <translation>Le drone est *sur sa base*</translation>
    </message>
    <message>
        <source>Holding for *your decision*</source>
        <translation>En attente de *votre décision*</translation>
    </message>
    <message>
        <source>Taking *off*</source>
        <translation>Décollage *en cours*</translation>
    </message>
    <message>
        <source>On its way to *the visitor*</source>
        <translation>En route vers *le visiteur*</translation>
    </message>
    <message>
        <source>Following *at %1 m*</source>
        <translation>Suivi *à %1&#xa0;m*</translation>
    </message>
    <message>
        <source>Following *the visitor*</source>
        <translation>Suivi *du visiteur*</translation>
    </message>
    <message>
        <source>Holding *position*</source>
        <translation>Position *maintenue*</translation>
    </message>
    <message>
        <source>Coming *home*</source>
        <translation>Retour *à la base*</translation>
    </message>
    <message>
        <source>Landing *on its pad*</source>
        <translation>Atterrissage *sur sa base*</translation>
    </message>
    <message>
        <source>Landing *where it is*</source>
        <translation>Atterrissage *sur place*</translation>
    </message>
    <message>
        <source>Live flight</source>
        <translation>Vol en direct</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindow</name>
    <message>
        <source>Clear the demo history?</source>
        <translation>Vider l’historique démo&#x202f;?</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Clear demo history</source>
        <translation>Vider l’historique démo</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>Fichier non enregistré</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Choose another folder and export it again.</source>
        <translation>Choisissez un autre dossier et relancez l’export.</translation>
    </message>
    <message>
        <source>One rehearsed visit goes. Visits that were really flown stay.</source>
        <translation>Une visite simulée sera effacée. Les visites réelles sont conservées.</translation>
    </message>
    <message>
        <source>%1 rehearsed visits go. Visits that were really flown stay.</source>
        <translation>%1&#xa0;visites simulées seront effacées. Les visites réelles sont conservées.</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Le rapport est enregistré.</translation>
    </message>
</context>
<context>
    <name>velmora::MapCard</name>
    <message>
        <source>Your grounds, live</source>
        <translation>Votre terrain en direct</translation>
    </message>
    <message>
        <source>%1 m buffer inside your boundary</source>
        <translation>Marge de %1&#xa0;m dans votre limite</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drone</translation>
    </message>
    <message>
        <source>Visitor</source>
        <translation>Visiteur</translation>
    </message>
    <message>
        <source>Camera view</source>
        <translation>Vue caméra</translation>
    </message>
</context>
<context>
    <name>velmora::NoteRow</name>
    <message>
        <source>Keep the drone in sight while it flies</source>
        <translation>Gardez le drone en vue pendant qu’il vole</translation>
    </message>
    <message>
        <source>Holding at your boundary</source>
        <translation>Maintien à votre limite</translation>
    </message>
</context>
<context>
    <name>velmora::NowGroup</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Launch (approve)</source>
        <translation>Lancer (approuver)</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>To visitor</source>
        <translation>Visiteur à</translation>
    </message>
    <message>
        <source>From pad</source>
        <translation>Base à</translation>
    </message>
    <message>
        <source>Last known</source>
        <translation>Dernier état connu</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>Inside your boundary</source>
        <translation>Dans votre limite</translation>
    </message>
    <message>
        <source>Outside your boundary</source>
        <translation>Hors de votre limite</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Image&#xa0;: %1</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
</context>
<context>
    <name>velmora::OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
</context>
<context>
    <name>velmora::PatternsPane</name>
    <message>
        <source>Patterns appear after three visits.</source>
        <translation>Les tendances apparaissent après trois visites.</translation>
    </message>
    <message>
        <source>When they came</source>
        <translation>Quand ils sont venus</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Tendances</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <comment>form of a date</comment>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Patterns · %1 to %2</source>
        <comment>dates</comment>
        <translation>Tendances · du %1 au %2</translation>
    </message>
</context>
<context>
    <name>velmora::PatternsSummary</name>
    <message>
        <source>How they ended</source>
        <translation>Issue des visites</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Par caméra</translation>
    </message>
    <message>
        <source>%1 of %2 flown</source>
        <translation>%1 vols sur %2</translation>
    </message>
</context>
<context>
    <name>velmora::PhaseTimeline</name>
    <message>
        <source>Spotted</source>
        <translation>Repéré</translation>
    </message>
    <message>
        <source>Approved</source>
        <translation>Approuvé</translation>
    </message>
    <message>
        <source>On its way</source>
        <translation>En route</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>En suivi</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Retour à la base</translation>
    </message>
    <message>
        <source>Landed</source>
        <translation>Posé</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Étape %1 sur %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>No mission under way</source>
        <translation>Aucune mission en cours</translation>
    </message>
</context>
<context>
    <name>velmora::RecordDetail</name>
    <message>
        <source>Replay</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Delete this visit</source>
        <translation>Supprimer cette visite</translation>
    </message>
</context>
<context>
    <name>velmora::RecordFacts</name>
    <message>
        <source>What happened</source>
        <translation>Déroulement</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Furthest out</source>
        <translation>Distance max.</translation>
    </message>
    <message>
        <source>Battery used</source>
        <translation>Charge utilisée</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>% unknown</source>
        <translation>% inconnu</translation>
    </message>
    <message>
        <source>The drone did not fly.</source>
        <translation>Le drone n’a pas volé.</translation>
    </message>
    <message>
        <source>Detected %1, ended %2</source>
        <translation>Détecté à %1, terminé à %2</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Image&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>velmora::RecordList</name>
    <message>
        <source>Visits</source>
        <translation>Visites</translation>
    </message>
</context>
<context>
    <name>velmora::ReplayBar</name>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Replay speed</source>
        <translation>Vitesse de relecture</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>velmora::ReplaySlider</name>
    <message>
        <source>Replay time</source>
        <translation>Position de relecture</translation>
    </message>
</context>
<context>
    <name>velmora::ReportProgress</name>
    <message>
        <source>Making the report</source>
        <translation>Création du rapport</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 visits go into the report. The file is complete when all is done.</source>
        <translation>%1&#xa0;visites entrent dans le rapport. Le fichier est complet quand tout est terminé.</translation>
    </message>
</context>
<context>
    <name>velmora::ResponseTimes</name>
    <message>
        <source>Response</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Seen to landed %1</source>
        <translation>Jusqu’à l’atterrissage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Seen to the end %1</source>
        <translation>Jusqu’à la fin&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsView</name>
    <message>
        <source>Guided by this computer</source>
        <translation>Guidé par cet ordinateur</translation>
    </message>
    <message>
        <source>Guided by this Mac</source>
        <translation>Guidé par ce Mac</translation>
    </message>
    <message>
        <source>DJI tracking hand-over</source>
        <translation>Relais au suivi DJI</translation>
    </message>
    <message>
        <source>Your cameras locate the visitor and Velmora steers the drone. Works with any supported drone.</source>
        <translation>Vos caméras localisent le visiteur et Velmora dirige le drone. Fonctionne avec tout drone pris en charge.</translation>
    </message>
    <message>
        <source>Velmora flies the drone to the visitor, then hands over to the drone&apos;s own tracking and takes back control near the boundary. Experimental: not yet confirmed on the Mini 4 Pro.</source>
        <translation>Velmora conduit le drone jusqu’au visiteur, passe le relais au suivi intégré du drone, puis reprend la main près de la limite. Expérimental&#xa0;: pas encore confirmé sur le Mini&#xa0;4&#xa0;Pro.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>How the drone *behaves*.</source>
        <translation>Comment le drone *se comporte*.</translation>
    </message>
    <message>
        <source>These limits are enforced by velmora&apos;s safety layer, not just shown here.</source>
        <translation>Ces limites sont imposées par la couche de sécurité de velmora, pas seulement affichées.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Vol</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Retour à la base</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Suivi</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>The rules</source>
        <translation>Les règles</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Flight height</source>
        <translation>Hauteur de vol</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Never below</source>
        <translation>Jamais en dessous de</translation>
    </message>
    <message>
        <source>Follow distance</source>
        <translation>Distance de suivi</translation>
    </message>
    <message>
        <source>Stay this far inside</source>
        <translation>Marge à respecter</translation>
    </message>
    <message>
        <source>The boundary itself comes from velmora&apos;s config (your site plan). In demo mode it&apos;s the hedge line on the map.</source>
        <translation>La limite elle-même vient de la configuration de velmora (le plan de votre terrain). En mode démo, c’est la ligne de haie sur la carte.</translation>
    </message>
    <message>
        <source>Return when battery is below</source>
        <translation>Rentrer si la batterie est sous</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Don&apos;t launch if wind is over</source>
        <translation>Ne pas décoller si le vent dépasse</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Alert expires after</source>
        <translation>L’alerte expire après</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Alert on this computer</source>
        <translation>Alerte sur cet ordinateur</translation>
    </message>
    <message>
        <source>Alert on this Mac</source>
        <translation>Alerte sur ce Mac</translation>
    </message>
    <message>
        <source>Phone (ntfy topic)</source>
        <translation>Téléphone (sujet ntfy)</translation>
    </message>
    <message>
        <source>e.g. velmora-home</source>
        <translation>p.&#xa0;ex. velmora-maison</translation>
    </message>
    <message>
        <source>Every launch needs your approval. There is no automatic launch.</source>
        <translation>Chaque décollage exige votre approbation. Il n’y a aucun décollage automatique.</translation>
    </message>
    <message>
        <source>Keep the drone in sight while it flies (UK Open category).</source>
        <translation>Gardez le drone en vue pendant qu’il vole (catégorie ouverte, Royaume-Uni).</translation>
    </message>
    <message>
        <source>Flying with no one in control would need a CAA Operational Authorisation.</source>
        <translation>Voler sans personne aux commandes exigerait une autorisation d’exploitation de la CAA.</translation>
    </message>
    <message>
        <source>Velmora 1.0 · consumer app for the velmora framework</source>
        <translation>Velmora 1.0 · application grand public de la plateforme velmora</translation>
    </message>
    <message>
        <source>Set in Inter, used under the SIL Open Font License.</source>
        <translation>Composé en Inter, utilisé selon la SIL Open Font License.</translation>
    </message>
    <message>
        <source>Start Velmora when I log in</source>
        <translation>Démarrer Velmora avec ma session</translation>
    </message>
    <message>
        <source>Show welcome again</source>
        <translation>Revoir l’accueil</translation>
    </message>
    <message>
        <source>Open data folder</source>
        <translation>Ouvrir les données</translation>
    </message>
    <message>
        <source>Every command for the drone is in journal.jsonl, in the data folder.</source>
        <translation>Chaque commande donnée au drone est dans journal.jsonl, dans le dossier des données.</translation>
    </message>
</context>
<context>
    <name>velmora::Sidebar</name>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Live flight</source>
        <translation>Vol en direct</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
<context>
    <name>velmora::SiteMap</name>
    <message>
        <source>Waiting for velmora</source>
        <translation>En attente de velmora</translation>
    </message>
</context>
<context>
    <name>velmora::StaleBanner</name>
    <message>
        <source>Connection settings</source>
        <translation>Réglages de connexion</translation>
    </message>
    <message>
        <source>Open live flight →</source>
        <translation>Vol en direct →</translation>
    </message>
    <message>
        <source>Picture %1 old</source>
        <translation>Image d’il y a %1</translation>
    </message>
    <message>
        <source>Commands may not arrive.</source>
        <translation>Commandes non garanties.</translation>
    </message>
    <message>
        <source>Commands may not arrive until the link is back.</source>
        <translation>Commandes non garanties jusqu’au retour de la liaison.</translation>
    </message>
    <message>
        <source>No picture received yet.</source>
        <translation>Encore aucune image reçue.</translation>
    </message>
    <message>
        <source>This picture is *%1 old*, received %2.</source>
        <translation>Image *d’il y a %1*, reçue à %2.</translation>
    </message>
    <message>
        <source>Picture *%1 old*.</source>
        <translation>Image *d’il y a %1*.</translation>
    </message>
    <message>
        <source>*%1* — picture *%2 old*.</source>
        <translation>*%1* – image *d’il y a %2*.</translation>
    </message>
    <message>
        <source>Velmora tries again twice a second.</source>
        <translation>Velmora réessaie deux fois par seconde.</translation>
    </message>
    <message>
        <source>Last received at %1.</source>
        <translation>Dernière réception à %1.</translation>
    </message>
</context>
<context>
    <name>velmora::StatusStrip</name>
    <message>
        <source>This computer + phone</source>
        <translation>Ordinateur + téléphone</translation>
    </message>
    <message>
        <source>This Mac + phone</source>
        <translation>Ce Mac + téléphone</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Ce Mac</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>This window only</source>
        <translation>Cette fenêtre seule</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drone</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>%1% battery</source>
        <translation>Batterie %1&#xa0;%</translation>
    </message>
    <message>
        <source>signal %1%</source>
        <translation>signal %1&#xa0;%</translation>
    </message>
    <message>
        <source>On its pad</source>
        <translation>Sur sa base</translation>
    </message>
    <message>
        <source>%1 offline</source>
        <translation>%1 hors ligne</translation>
    </message>
    <message>
        <source>%1 cameras offline</source>
        <translation>%1&#xa0;caméras hors ligne</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 sur %2 en ligne</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1&#xa0;km/h</translation>
    </message>
    <message>
        <source>Too windy to fly</source>
        <translation>Trop de vent pour voler</translation>
    </message>
    <message>
        <source>Fine to fly (limit %1 km/h)</source>
        <translation>Vol possible (limite %1&#xa0;km/h)</translation>
    </message>
    <message>
        <source>Unknown faces trigger an alert</source>
        <translation>Alerte à tout visage inconnu</translation>
    </message>
    <message>
        <source>Every launch needs your yes</source>
        <translation>Aucun vol sans votre accord</translation>
    </message>
</context>
<context>
    <name>velmora::Telemetry</name>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>To visitor</source>
        <translation>Visiteur à</translation>
    </message>
    <message>
        <source>From pad</source>
        <translation>Base à</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Flight time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
</context>
<context>
    <name>velmora::TitleStrip</name>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>velmora::ToggleRow</name>
    <message>
        <source>Will not alert while offline</source>
        <translation>Aucune alerte tant qu’elle est hors ligne</translation>
    </message>
</context>
<context>
    <name>velmora::Tray</name>
    <message>
        <source>Launch drone</source>
        <translation>Lancer le drone</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Rentrer à la base</translation>
    </message>
    <message>
        <source>Open Velmora</source>
        <translation>Ouvrir Velmora</translation>
    </message>
    <message>
        <source>Quit Velmora</source>
        <translation>Quitter Velmora</translation>
    </message>
    <message>
        <source>Waiting for velmora</source>
        <translation>En attente de velmora</translation>
    </message>
    <message>
        <source>Armed</source>
        <translation>Armé</translation>
    </message>
    <message>
        <source>Disarmed</source>
        <translation>Désarmé</translation>
    </message>
    <message>
        <source>Disarm</source>
        <translation>Désarmer</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Armer</translation>
    </message>
    <message>
        <source>Velmora — %1</source>
        <translation>Velmora – %1</translation>
    </message>
</context>
<context>
    <name>velmora::VisitMatrix</name>
    <message>
        <source>Visits by weekday and hour</source>
        <translation>Visites par jour de la semaine et heure</translation>
    </message>
</context>
<context>
    <name>velmora::VisitOffers</name>
    <message>
        <source>Simulate a visitor</source>
        <translation>Simuler un visiteur</translation>
    </message>
</context>
<context>
    <name>velmora::VisitorCard</name>
    <message>
        <source>inside your boundary</source>
        <translation>dans votre limite</translation>
    </message>
    <message>
        <source>outside your boundary</source>
        <translation>hors de votre limite</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Image&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>velmora::WelcomeView</name>
    <message>
        <source>A second pair of eyes over *your grounds*.</source>
        <translation>Une deuxième paire d’yeux sur *votre&#xa0;terrain*.</translation>
    </message>
    <message>
        <source>Your cameras spot someone they don&apos;t recognise</source>
        <translation>Vos caméras repèrent un inconnu</translation>
    </message>
    <message>
        <source>UniFi Protect face and person detection. Family and friends you&apos;ve added are ignored.</source>
        <translation>Détection des visages et des personnes par UniFi Protect. Les proches que vous avez ajoutés sont ignorés.</translation>
    </message>
    <message>
        <source>You decide</source>
        <translation>Vous décidez</translation>
    </message>
    <message>
        <source>An alert arrives on this computer and your phone. The drone only launches when you say yes.</source>
        <translation>Une alerte arrive sur cet ordinateur et votre téléphone. Le drone ne décolle que si vous dites oui.</translation>
    </message>
    <message>
        <source>An alert arrives on this Mac and your phone. The drone only launches when you say yes.</source>
        <translation>Une alerte arrive sur ce Mac et votre téléphone. Le drone ne décolle que si vous dites oui.</translation>
    </message>
    <message>
        <source>The drone keeps watch, then comes home</source>
        <translation>Le drone veille, puis rentre à la base</translation>
    </message>
    <message>
        <source>It follows from about 15 m at 15 m high, never leaves your boundary, rides out gusts and lands on its pad.</source>
        <translation>Il suit à environ 15&#xa0;m, à 15&#xa0;m de hauteur, ne franchit jamais votre limite, résiste aux rafales et se pose sur sa base.</translation>
    </message>
    <message>
        <source>Demo mode runs a built-in simulation of the drone, cameras and your grounds, so you can try everything now.</source>
        <translation>Le mode démo simule le drone, les caméras et votre terrain&#xa0;: vous pouvez tout essayer dès maintenant.</translation>
    </message>
    <message>
        <source>Welcome to Velmora</source>
        <translation>Bienvenue dans Velmora</translation>
    </message>
    <message>
        <source>Explore in demo mode</source>
        <translation>Explorer en mode démo</translation>
    </message>
    <message>
        <source>Connect to velmora</source>
        <translation>Se connecter à velmora</translation>
    </message>
</context>
<context>
    <name>velmora::Words</name>
    <message>
        <source>The host or port in Settings is not a valid address</source>
        <translation>L’hôte ou le port des réglages n’est pas valide</translation>
    </message>
    <message>
        <source>The host was not found</source>
        <translation>Hôte introuvable</translation>
    </message>
    <message>
        <source>The connection was refused</source>
        <translation>Connexion refusée</translation>
    </message>
    <message>
        <source>The network is unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>The connection timed out</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>The server sent a bad response</source>
        <translation>Réponse invalide du serveur</translation>
    </message>
    <message>
        <source>The server&apos;s state could not be read (%1)</source>
        <translation>L’état du serveur est illisible (%1)</translation>
    </message>
    <message>
        <source>Linked to velmora %1</source>
        <translation>Relié à velmora %1</translation>
    </message>
    <message>
        <source>Can&apos;t reach velmora — %1</source>
        <translation>velmora injoignable. %1</translation>
    </message>
    <message>
        <source>Demo mode</source>
        <translation>Mode démo</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>a camera</source>
        <translation>une caméra</translation>
    </message>
    <message>
        <source>Someone you don&apos;t know is at the %1</source>
        <translation>Personne inconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Launch the drone to keep an eye on them?</source>
        <translation>Lancer le drone pour la garder à l’œil&#x202f;?</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <comment>form of a date</comment>
        <translation>&apos;le&apos; ddd d MMM &apos;à&apos; HH:mm</translation>
    </message>
    <message>
        <source>No answer since %1. No alert arrives until the link is back.</source>
        <translation>Sans réponse depuis %1. Aucune alerte n’arrivera avant le retour de la liaison.</translation>
    </message>
    <message>
        <source>Offline at least since %1. It raises no alert until it is back.</source>
        <translation>Hors ligne au moins depuis %1. Elle ne déclenche aucune alerte avant son retour.</translation>
    </message>
    <message>
        <source>%1 raise no alert until they are back.</source>
        <translation>Aucune alerte avant leur retour&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Velmora can&apos;t reach your server</source>
        <translation>Votre serveur est injoignable</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>Caméra hors ligne&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 cameras are offline</source>
        <translation>%1&#xa0;caméras hors ligne</translation>
    </message>
    <message>
        <source>Docked</source>
        <translation>Au sol</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>À vous de décider</translation>
    </message>
    <message>
        <source>Taking off</source>
        <translation>Décollage</translation>
    </message>
    <message>
        <source>On its way</source>
        <translation>En route</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>En suivi</translation>
    </message>
    <message>
        <source>Holding position</source>
        <translation>Position maintenue</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Retour à la base</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Atterrissage</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Lancer le drone</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Maintenir la position</translation>
    </message>
    <message>
        <source>Resume following</source>
        <translation>Reprendre le suivi</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Rentrer à la base</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Atterrir maintenant</translation>
    </message>
    <message>
        <source>velmora did not confirm “%1”. %2.</source>
        <translation>velmora n’a pas confirmé «&#xa0;%1&#xa0;». %2.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayez</translation>
    </message>
    <message>
        <source>%1. Try again.</source>
        <translation>%1. Réessayez.</translation>
    </message>
    <message>
        <source>velmora has not answered</source>
        <translation>velmora n’a pas répondu</translation>
    </message>
    <message>
        <source>Sent…</source>
        <translation>Envoyé…</translation>
    </message>
    <message>
        <source>under your return level of %1</source>
        <translation>sous le seuil de retour de %1</translation>
    </message>
    <message>
        <source>over your limit of %1</source>
        <translation>au-delà de %1</translation>
    </message>
    <message>
        <source>Visitor on the driveway</source>
        <translation>Visiteur dans l’allée</translation>
    </message>
    <message>
        <source>Visitor in the east garden</source>
        <translation>Visiteur dans le jardin est</translation>
    </message>
    <message>
        <source>Visitor crossing the front lawn</source>
        <translation>Visiteur traversant la pelouse avant</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <comment>form of a date</comment>
        <translation>dddd d MMMM</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>dddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Hier %1</translation>
    </message>
    <message>
        <source>ddd HH:mm</source>
        <comment>form of a date</comment>
        <translation>ddd HH:mm</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1&#xa0;min %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message>
        <source>Replay: nobody was tracked.</source>
        <translation>Relecture&#xa0;: personne n’a été suivi.</translation>
    </message>
    <message>
        <source>Replay of the visitor&apos;s path; the drone stayed on its pad.</source>
        <translation>Relecture du trajet du visiteur&#x202f;; le drone est resté sur sa base.</translation>
    </message>
    <message>
        <source>Replay of the visitor&apos;s path and of the drone&apos;s, at most %1 m from its pad.</source>
        <translation>Relecture des trajets du visiteur et du drone, à %1&#xa0;m au plus de sa base.</translation>
    </message>
    <message>
        <source>The drone is on its pad.</source>
        <translation>Le drone est sur sa base.</translation>
    </message>
    <message>
        <source>The drone is at %1 m height, %2 m from its pad and %3 m from the boundary.</source>
        <translation>Le drone est à %1&#xa0;m de hauteur, à %2&#xa0;m de sa base et à %3&#xa0;m de la limite.</translation>
    </message>
    <message>
        <source>Unknown person</source>
        <translation>Personne inconnue</translation>
    </message>
    <message>
        <source>%1 is %2 m from the drone, %3 m inside the boundary.</source>
        <translation>%1&#xa0;: à %2&#xa0;m du drone, à %3&#xa0;m à l’intérieur de la limite.</translation>
    </message>
    <message>
        <source>%1 is %2 m from the drone, outside the boundary.</source>
        <translation>%1&#xa0;: à %2&#xa0;m du drone, hors de la limite.</translation>
    </message>
    <message>
        <source>Map of your grounds.</source>
        <translation>Carte de votre terrain.</translation>
    </message>
    <message>
        <source>Nobody is being watched.</source>
        <translation>Personne n’est surveillé.</translation>
    </message>
    <message>
        <source>Your boundary</source>
        <translation>Votre limite</translation>
    </message>
    <message>
        <source>%1 m buffer</source>
        <translation>Marge de %1&#xa0;m</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Arrivée</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Vu en dernier</translation>
    </message>
    <message>
        <source>%1 m from the pad</source>
        <translation>à %1&#xa0;m de la base</translation>
    </message>
    <message>
        <source>over its pad</source>
        <translation>au-dessus de sa base</translation>
    </message>
    <message>
        <source>%1 m out</source>
        <translation>à %1&#xa0;m</translation>
    </message>
    <message>
        <source>No camera is looking for people yet.</source>
        <translation>Aucune caméra ne guette encore d’inconnus.</translation>
    </message>
    <message>
        <source>1 camera is looking for people it doesn&apos;t recognise.</source>
        <translation>1&#xa0;caméra guette les inconnus.</translation>
    </message>
    <message>
        <source>%1 cameras are looking for people they don&apos;t recognise.</source>
        <translation>%1&#xa0;caméras guettent les inconnus.</translation>
    </message>
    <message>
        <source>Waiting for *velmora*.</source>
        <translation>En attente de *velmora*.</translation>
    </message>
    <message>
        <source>Your drone is *on patrol*.</source>
        <translation>Votre drone est *en patrouille*.</translation>
    </message>
    <message>
        <source>Someone is *on your grounds*.</source>
        <translation>Quelqu’un est *sur votre terrain*.</translation>
    </message>
    <message>
        <source>Your grounds are *watched*.</source>
        <translation>Votre terrain est *surveillé*.</translation>
    </message>
    <message>
        <source>Velmora is *disarmed*.</source>
        <translation>Velmora est *désarmé*.</translation>
    </message>
    <message>
        <source>No picture received yet.</source>
        <translation>Encore aucune image reçue.</translation>
    </message>
    <message>
        <source>%1, %2. It stays inside your boundary and comes home on its own.</source>
        <translation>%1, %2. Il reste dans votre limite et rentre tout seul.</translation>
    </message>
    <message>
        <source>Cameras still log people they don&apos;t recognise, but the drone won&apos;t offer to launch.</source>
        <translation>Les caméras continuent de consigner les inconnus, mais le drone ne proposera pas de décoller.</translation>
    </message>
    <message>
        <source>The drone is on its pad and only flies when you say so.</source>
        <translation>Le drone est sur sa base et ne vole que si vous le décidez.</translation>
    </message>
    <message>
        <source>%1 s to answer</source>
        <translation>%1&#xa0;s pour répondre</translation>
    </message>
    <message>
        <source>%1 m from the visitor</source>
        <translation>à %1&#xa0;m du visiteur</translation>
    </message>
    <message>
        <source>%1% battery</source>
        <translation>Batterie %1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 camera</source>
        <translation>Caméra %1</translation>
    </message>
    <message>
        <source>%1% sure it&apos;s no one you know</source>
        <translation>Inconnu avec %1&#xa0;% de certitude</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>day, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Démo</translation>
    </message>
    <message>
        <source>on the alert&apos;s card</source>
        <translation>sur la carte de l’alerte</translation>
    </message>
    <message>
        <source>on the overview</source>
        <translation>dans la vue d’ensemble</translation>
    </message>
    <message>
        <source>on Live flight</source>
        <translation>sous « Vol en direct »</translation>
    </message>
    <message>
        <source>from the menu</source>
        <translation>depuis le menu</translation>
    </message>
    <message>
        <source>with the keyboard shortcut</source>
        <translation>avec le raccourci clavier</translation>
    </message>
    <message>
        <source>from the tray</source>
        <translation>depuis la zone de notification</translation>
    </message>
    <message>
        <source>from the notification</source>
        <translation>depuis la notification</translation>
    </message>
    <message>
        <source>in the self-check</source>
        <translation>pendant l’autotest</translation>
    </message>
    <message>
        <source>You approved %1 after the alert.</source>
        <translation>Vous avez approuvé %1 après l’alerte.</translation>
    </message>
    <message>
        <source>You ignored the alert after %1.</source>
        <translation>Vous avez ignoré l’alerte après %1.</translation>
    </message>
    <message>
        <source>You approved %1, %2 after the alert.</source>
        <translation>Vous avez approuvé %1, %2 après l’alerte.</translation>
    </message>
    <message>
        <source>You ignored the alert %1, after %2.</source>
        <translation>Vous avez ignoré l’alerte %1, après %2.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>name, visits</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No visitor was seen walking</source>
        <translation>Aucun visiteur n’a été vu marcher</translation>
    </message>
    <message>
        <source>Where they walked: one visit</source>
        <translation>Où ils ont marché&#xa0;: une visite</translation>
    </message>
    <message>
        <source>Where they walked: from one visit to %1</source>
        <translation>Où ils ont marché&#xa0;: d’une visite à %1</translation>
    </message>
    <message>
        <source>Where they walked</source>
        <translation>Où ils ont marché</translation>
    </message>
    <message>
        <source>after midnight on %1s</source>
        <comment>weekday; when visits come</comment>
        <translation>le %1 après minuit</translation>
    </message>
    <message>
        <source>on %1 mornings</source>
        <comment>weekday; when visits come</comment>
        <translation>le %1 matin</translation>
    </message>
    <message>
        <source>on %1 afternoons</source>
        <comment>weekday; when visits come</comment>
        <translation>le %1 après-midi</translation>
    </message>
    <message>
        <source>on %1 evenings</source>
        <comment>weekday; when visits come</comment>
        <translation>le %1 soir</translation>
    </message>
    <message>
        <source>late on %1s</source>
        <comment>weekday; when visits come</comment>
        <translation>tard le %1 soir</translation>
    </message>
    <message>
        <source>on the driveway</source>
        <comment>where visits were</comment>
        <translation>dans l’allée</translation>
    </message>
    <message>
        <source>on the front lawn</source>
        <comment>where visits were</comment>
        <translation>sur la pelouse avant</translation>
    </message>
    <message>
        <source>in the east garden</source>
        <comment>where visits were</comment>
        <translation>dans le jardin est</translation>
    </message>
    <message>
        <source>at the %1 camera</source>
        <comment>where visits were</comment>
        <translation>à la caméra «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>No visits in 7 days</source>
        <translation>Aucune visite en 7&#xa0;jours</translation>
    </message>
    <message>
        <source>1 visit in 7 days</source>
        <translation>1&#xa0;visite en 7&#xa0;jours</translation>
    </message>
    <message>
        <source>%1 visits in 7 days</source>
        <translation>%1&#xa0;visites en 7&#xa0;jours</translation>
    </message>
    <message>
        <source>No visits in 30 days</source>
        <translation>Aucune visite en 30&#xa0;jours</translation>
    </message>
    <message>
        <source>1 visit in 30 days</source>
        <translation>1&#xa0;visite en 30&#xa0;jours</translation>
    </message>
    <message>
        <source>%1 visits in 30 days</source>
        <translation>%1&#xa0;visites en 30&#xa0;jours</translation>
    </message>
    <message>
        <source>No visits in a year</source>
        <translation>Aucune visite en un an</translation>
    </message>
    <message>
        <source>1 visit in a year</source>
        <translation>1&#xa0;visite en un an</translation>
    </message>
    <message>
        <source>%1 visits in a year</source>
        <translation>%1&#xa0;visites en un an</translation>
    </message>
    <message>
        <source>No visits on file</source>
        <translation>Aucune visite dans l’historique</translation>
    </message>
    <message>
        <source>1 visit on file</source>
        <translation>1&#xa0;visite dans l’historique</translation>
    </message>
    <message>
        <source>%1 visits on file</source>
        <translation>%1&#xa0;visites dans l’historique</translation>
    </message>
    <message>
        <source>%1, all *%2*.</source>
        <comment>visits; when or where</comment>
        <translation>%1, toutes *%2*.</translation>
    </message>
    <message>
        <source>%1, most *%2*.</source>
        <comment>visits; when or where</comment>
        <translation>%1, la plupart *%2*.</translation>
    </message>
    <message>
        <source>%1, %3 of them *%2*.</source>
        <comment>visits; when or where; number</comment>
        <translation>%1, dont %3 *%2*.</translation>
    </message>
    <message>
        <source>%1, all %2 *%3*.</source>
        <comment>visits; when; where</comment>
        <translation>%1, toutes %2 *%3*.</translation>
    </message>
    <message>
        <source>%1, most %2 *%3*.</source>
        <comment>visits; when; where</comment>
        <translation>%1, la plupart %2 *%3*.</translation>
    </message>
    <message>
        <source>%1, %4 of them %2 *%3*.</source>
        <comment>visits; when; where; number</comment>
        <translation>%1, dont %4 %2 *%3*.</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>visits</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No visits</source>
        <translation>Aucune visite</translation>
    </message>
    <message>
        <source>1 visit</source>
        <translation>1&#xa0;visite</translation>
    </message>
    <message>
        <source>%1 visits</source>
        <translation>%1&#xa0;visites</translation>
    </message>
    <message>
        <source>no visits</source>
        <translation>aucune visite</translation>
    </message>
    <message>
        <source>one visit</source>
        <translation>une visite</translation>
    </message>
    <message>
        <source>two visits</source>
        <translation>deux visites</translation>
    </message>
    <message>
        <source>three visits</source>
        <translation>trois visites</translation>
    </message>
    <message>
        <source>four visits</source>
        <translation>quatre visites</translation>
    </message>
    <message>
        <source>five visits</source>
        <translation>cinq visites</translation>
    </message>
    <message>
        <source>six visits</source>
        <translation>six visites</translation>
    </message>
    <message>
        <source>seven visits</source>
        <translation>sept visites</translation>
    </message>
    <message>
        <source>eight visits</source>
        <translation>huit visites</translation>
    </message>
    <message>
        <source>nine visits</source>
        <translation>neuf visites</translation>
    </message>
    <message>
        <source>ten visits</source>
        <translation>dix visites</translation>
    </message>
    <message>
        <source>eleven visits</source>
        <translation>onze visites</translation>
    </message>
    <message>
        <source>twelve visits</source>
        <translation>douze visites</translation>
    </message>
    <message>
        <source>%1 of %2 on %3s between %4 and %5</source>
        <comment>numbers; weekday; hours</comment>
        <translation>%1 sur %2 le %3 entre %4 et %5</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <comment>weekday; hour; visits</comment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>it would be empty</source>
        <translation>il serait vide</translation>
    </message>
    <message>
        <source>It was nearest to the boundary at %1.</source>
        <translation>Il a été le plus près de la limite à %1.</translation>
    </message>
    <message>
        <source>The drone was %1 m outside the boundary at the furthest and was %2 in the %3 m buffer.</source>
        <translation>Le drone s’est trouvé jusqu’à %1&#xa0;m hors de la limite et a passé %2 dans la marge de %3&#xa0;m.</translation>
    </message>
    <message>
        <source>The drone stayed at least %1 m inside the boundary and was %2 in the %3 m buffer.</source>
        <translation>Le drone est resté à %1&#xa0;m au moins à l’intérieur de la limite et a passé %2 dans la marge de %3&#xa0;m.</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>no alert asked for one</source>
        <translation>aucune alerte n’en demandait</translation>
    </message>
    <message>
        <source>%1 of %2 alerts expired</source>
        <translation>%1 alertes sur %2 expirées</translation>
    </message>
    <message>
        <source>1 answer; %1 of %2 alerts expired</source>
        <translation>1 réponse&#xa0;; %1 alertes sur %2 expirées</translation>
    </message>
    <message>
        <source>median of %1 answers; %2 of %3 alerts expired</source>
        <translation>médiane de %1 réponses&#xa0;; %2 alertes sur %3 expirées</translation>
    </message>
    <message>
        <source>no flight reached a visitor</source>
        <translation>aucun vol n’a atteint un visiteur</translation>
    </message>
    <message>
        <source>1 flight, seen to on station</source>
        <translation>1 vol, de la détection à l’arrivée sur place</translation>
    </message>
    <message>
        <source>median of %1 flights, seen to on station</source>
        <translation>médiane de %1 vols, de la détection à l’arrivée sur place</translation>
    </message>
    <message>
        <source>Inside by at least</source>
        <translation>Au moins à l’intérieur</translation>
    </message>
    <message>
        <source>the drone did not fly</source>
        <translation>le drone n’a pas volé</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>the drone left your boundary</source>
        <translation>le drone a franchi votre limite</translation>
    </message>
    <message>
        <source>nearest the drone came to your boundary</source>
        <translation>le drone ne s’est pas approché davantage de votre limite</translation>
    </message>
    <message>
        <source>To your answer</source>
        <translation>Jusqu’à votre réponse</translation>
    </message>
    <message>
        <source>To the visitor</source>
        <translation>Jusqu’au visiteur</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Vu</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>réponse</translation>
    </message>
    <message>
        <source>airborne</source>
        <translation>en vol</translation>
    </message>
    <message>
        <source>on station</source>
        <translation>en position</translation>
    </message>
    <message>
        <source>coming home</source>
        <translation>retour</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>fin</translation>
    </message>
    <message>
        <source>Seen to your answer</source>
        <translation>Jusqu’à votre réponse</translation>
    </message>
    <message>
        <source>Seen to the end</source>
        <translation>Jusqu’à la fin</translation>
    </message>
    <message>
        <source>Your answer to take-off</source>
        <translation>De la réponse au décollage</translation>
    </message>
    <message>
        <source>After your answer</source>
        <translation>Après votre réponse</translation>
    </message>
    <message>
        <source>On its way to the visitor</source>
        <translation>En route vers le visiteur</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>part of a response</comment>
        <translation>En suivi</translation>
    </message>
    <message>
        <source>Following and landing</source>
        <translation>Suivi et atterrissage</translation>
    </message>
    <message>
        <source>Coming home and landing</source>
        <translation>Retour et atterrissage</translation>
    </message>
    <message>
        <source>landed</source>
        <translation>posé</translation>
    </message>
    <message>
        <source>Report of the visits</source>
        <translation>Rapport des visites</translation>
    </message>
    <message>
        <source>Site: %1 · %2</source>
        <comment>name of the site, who made the report</comment>
        <translation>Site&#xa0;: %1 · %2</translation>
    </message>
    <message>
        <source>Patterns appear after three visits.</source>
        <translation>Les tendances apparaissent à partir de trois visites.</translation>
    </message>
    <message>
        <source>When they came</source>
        <translation>Quand ils sont venus</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Par caméra</translation>
    </message>
    <message>
        <source>How they ended</source>
        <translation>Comment elles se sont terminées</translation>
    </message>
    <message>
        <source>%1 of %2 flown</source>
        <translation>%1 sur %2 avec vol</translation>
    </message>
    <message>
        <source>%1 % done</source>
        <translation>%1&#xa0;% terminé</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>time, offset from UTC</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Airborne at %1.</source>
        <translation>En vol à %1.</translation>
    </message>
    <message>
        <source>Airborne at %1, at a height of %2 m.</source>
        <translation>En vol à %1, à %2&#xa0;m de hauteur.</translation>
    </message>
    <message>
        <source>On station at %1.</source>
        <translation>Sur place à %1.</translation>
    </message>
    <message>
        <source>On station at %1, following %2 m behind.</source>
        <translation>Sur place à %1, suivi à %2&#xa0;m de distance.</translation>
    </message>
    <message>
        <source>On its way home at %1.</source>
        <translation>Sur le retour à %1.</translation>
    </message>
    <message>
        <source>The flight ended at %1.</source>
        <translation>Le vol s’est terminé à %1.</translation>
    </message>
    <message>
        <source>On its pad at %1.</source>
        <translation>Sur sa base à %1.</translation>
    </message>
    <message>
        <source>Landed away from its pad at %1.</source>
        <translation>Posé hors de sa base à %1.</translation>
    </message>
    <message>
        <source>The owner approved the launch at %1, %2 after the camera reported the visitor.</source>
        <translation>Le propriétaire a approuvé le lancement à %1, %2 après le signalement du visiteur par la caméra.</translation>
    </message>
    <message>
        <source>The owner ignored the alert at %1, %2 after the camera reported the visitor.</source>
        <translation>Le propriétaire a ignoré l’alerte à %1, %2 après le signalement du visiteur par la caméra.</translation>
    </message>
    <message>
        <source>The owner approved the launch %1 at %2, %3 after the camera reported the visitor.</source>
        <translation>Le propriétaire a approuvé le lancement %1 à %2, %3 après le signalement du visiteur par la caméra.</translation>
    </message>
    <message>
        <source>The owner ignored the alert %1 at %2, %3 after the camera reported the visitor.</source>
        <translation>Le propriétaire a ignoré l’alerte %1 à %2, %3 après le signalement du visiteur par la caméra.</translation>
    </message>
    <message>
        <source>Nobody answered the alert until it expired at %1, %2 after the camera reported the visitor.</source>
        <translation>Personne n’a répondu à l’alerte avant son expiration à %1, %2 après le signalement du visiteur par la caméra.</translation>
    </message>
    <message>
        <source>The system was disarmed: the visit was only logged, and nobody was asked.</source>
        <translation>Le système était désarmé&#xa0;: la visite a seulement été enregistrée et personne n’a été sollicité.</translation>
    </message>
    <message>
        <source>The wind was over the owner&apos;s limit, and nobody was asked.</source>
        <translation>Le vent dépassait la limite du propriétaire et personne n’a été sollicité.</translation>
    </message>
    <message>
        <source>The record does not say how the alert was answered.</source>
        <translation>L’enregistrement n’indique pas la réponse donnée à l’alerte.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <comment>date, time, time</comment>
        <translation>%1, de %2 à %3</translation>
    </message>
    <message>
        <source>%1, %2 to %3, %4</source>
        <comment>date, time, date, time</comment>
        <translation>%1, %2 au %3, %4</translation>
    </message>
    <message>
        <source>The drone launches only after the owner&apos;s approval.</source>
        <translation>Le drone ne décolle qu’après l’approbation du propriétaire.</translation>
    </message>
    <message>
        <source>The drone stayed on its pad.</source>
        <translation>Le drone est resté sur sa base.</translation>
    </message>
    <message>
        <source>Solid: the visitor&apos;s path.</source>
        <translation>Trait plein&#xa0;: trajet du visiteur.</translation>
    </message>
    <message>
        <source>Dashed: the drone&apos;s path.</source>
        <translation>Tirets&#xa0;: trajet du drone.</translation>
    </message>
    <message>
        <source>Band: the %1 m buffer.</source>
        <translation>Bande&#xa0;: marge de %1&#xa0;m.</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <comment>form of a date and time</comment>
        <translation>d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>Made by Velmora %1 on %2 (%3)</source>
        <translation>Créé par Velmora %1 le %2 (%3)</translation>
    </message>
    <message>
        <source>Visit report</source>
        <translation>Rapport de visite</translation>
    </message>
    <message>
        <source>Record %1 · Site: %2 · %3</source>
        <comment>record id, name of the site, who made the report</comment>
        <translation>Enregistrement %1 · Site&#xa0;: %2 · %3</translation>
    </message>
    <message>
        <source>The picture is shown whole, as it was received.</source>
        <translation>L’image est montrée en entier, telle que reçue.</translation>
    </message>
    <message>
        <source>A rehearsed visit of the demo: nobody came, and nothing flew.</source>
        <translation>Une visite simulée de la démo&#xa0;: personne n’est venu et rien n’a volé.</translation>
    </message>
    <message>
        <source>There is no picture of this alert.</source>
        <translation>Il n’y a pas d’image de cette alerte.</translation>
    </message>
    <message>
        <source>Alert picture, %1, %2</source>
        <comment>camera, time</comment>
        <translation>Image de l’alerte, %1, %2</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Furthest out</source>
        <translation>Distance max.</translation>
    </message>
    <message>
        <source>Battery used</source>
        <translation>Charge utilisée</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Certitude</translation>
    </message>
    <message>
        <source>% unknown</source>
        <translation>% inconnu</translation>
    </message>
    <message>
        <source>How it was answered</source>
        <translation>La réponse donnée</translation>
    </message>
    <message>
        <source>The flight</source>
        <translation>Le vol</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Metres inside the boundary</source>
        <translation>Mètres à l’intérieur de la limite</translation>
    </message>
    <message>
        <source>%1 from seen to landed</source>
        <translation>%1 de la détection à l’atterrissage</translation>
    </message>
    <message>
        <source>%1 from seen to the end</source>
        <translation>%1 de la détection à la fin</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>After</source>
        <comment>column of times since the alert</comment>
        <translation>Après</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Déroulement</translation>
    </message>
    <message>
        <source>What happened, continued</source>
        <translation>Déroulement, suite</translation>
    </message>
    <message>
        <source>Paths, distances and times are those the drone and the cameras reported.</source>
        <translation>Trajets, distances et heures sont ceux que le drone et les caméras ont signalés.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>date, date</comment>
        <translation>%1 au %2</translation>
    </message>
    <message>
        <source>Only these visits: %1</source>
        <comment>names of filters</comment>
        <translation>Ces visites seulement : %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>StoredText</name>
    <message>
        <source>%1 camera: someone you don&apos;t know</source>
        <translation>Kamera %1: unbekannte Person</translation>
    </message>
    <message>
        <source>You approved the launch</source>
        <translation>Sie haben den Start freigegeben</translation>
    </message>
    <message>
        <source>Airborne at %1 m — heading to the visitor</source>
        <translation>In %1&#xa0;m Höhe – unterwegs zum Besucher</translation>
    </message>
    <message>
        <source>Following at %1 m</source>
        <translation>Folgt mit %1&#xa0;m Abstand</translation>
    </message>
    <message>
        <source>Following — handed over to DJI tracking</source>
        <translation>Folgt – an die DJI-Verfolgung übergeben</translation>
    </message>
    <message>
        <source>At your boundary — holding inside the %1 m buffer</source>
        <translation>An Ihrer Grenze – hält den Puffer von %1&#xa0;m ein</translation>
    </message>
    <message>
        <source>Gust of %1 km/h — recovered and back on station</source>
        <translation>Böe mit %1&#xa0;km/h – abgefangen, wieder in Position</translation>
    </message>
    <message>
        <source>Visitor has crossed your boundary</source>
        <translation>Besucher hat Ihre Grenze überschritten</translation>
    </message>
    <message>
        <source>Visitor has left your grounds</source>
        <translation>Besucher hat Ihr Grundstück verlassen</translation>
    </message>
    <message>
        <source>Holding position at %1 m</source>
        <translation>Hält Position in %1&#xa0;m Höhe</translation>
    </message>
    <message>
        <source>Following again</source>
        <translation>Folgt wieder</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Kehrt heim</translation>
    </message>
    <message>
        <source>Coming home — you asked</source>
        <translation>Kehrt heim – auf Ihren Wunsch</translation>
    </message>
    <message>
        <source>Battery below %1% — coming home</source>
        <translation>Akku unter %1&#xa0;% – kehrt heim</translation>
    </message>
    <message>
        <source>Landing now where it is — you asked</source>
        <translation>Landet jetzt an Ort und Stelle – auf Ihren Wunsch</translation>
    </message>
    <message>
        <source>Over the pad — landing</source>
        <translation>Über dem Landeplatz – landet</translation>
    </message>
    <message>
        <source>Landed and docked</source>
        <translation>Gelandet und angedockt</translation>
    </message>
    <message>
        <source>Landed away from the pad — please collect it</source>
        <translation>Abseits des Landeplatzes gelandet – bitte abholen</translation>
    </message>
    <message>
        <source>System armed</source>
        <translation>System scharf geschaltet</translation>
    </message>
    <message>
        <source>System disarmed — detections will be logged only</source>
        <translation>System unscharf geschaltet – Erkennungen werden nur protokolliert</translation>
    </message>
    <message>
        <source>Visitor left your grounds</source>
        <translation>Besucher ist gegangen</translation>
    </message>
    <message>
        <source>You sent the drone home</source>
        <translation>Sie schickten die Drohne heim</translation>
    </message>
    <message>
        <source>Came home on low battery</source>
        <translation>Heimkehr bei schwachem Akku</translation>
    </message>
    <message>
        <source>You landed the drone</source>
        <translation>Sie ließen die Drohne landen</translation>
    </message>
    <message>
        <source>You ignored the alert</source>
        <translation>Sie ignorierten den Alarm</translation>
    </message>
    <message>
        <source>Alert expired — drone stayed docked</source>
        <translation>Alarm abgelaufen – kein Start</translation>
    </message>
    <message>
        <source>Logged while disarmed</source>
        <translation>Unscharf – nur protokolliert</translation>
    </message>
    <message>
        <source>Too windy to fly — drone stayed docked</source>
        <translation>Zu windig zum Fliegen – kein Start</translation>
    </message>
    <message>
        <source>Unknown person</source>
        <translation>Unbekannte Person</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Driveway</source>
        <translation>Einfahrt</translation>
    </message>
    <message>
        <source>Front lawn</source>
        <translation>Vorgarten</translation>
    </message>
    <message>
        <source>East garden</source>
        <translation>Ostgarten</translation>
    </message>
</context>
<context>
    <name>velmora::AboutCard</name>
    <message>
        <source>About Velmora</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Velmora %1</source>
        <translation>Velmora %1</translation>
    </message>
    <message>
        <source>Watches your grounds, asks before it flies, and keeps a record of every visit.</source>
        <translation>Bewacht Ihr Grundstück, fragt vor jedem Flug und hält jeden Besuch fest.</translation>
    </message>
    <message>
        <source>Set in Inter, under the SIL Open Font License.</source>
        <translation>Schrift: Inter, unter der SIL Open Font License.</translation>
    </message>
</context>
<context>
    <name>velmora::ActiveBanner</name>
    <message>
        <source>Open live flight →</source>
        <translation>Zum Live-Flug →</translation>
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
        <translation>%1 %2 bis %3</translation>
    </message>
    <message>
        <source>Remove this filter</source>
        <translation>Diesen Filter entfernen</translation>
    </message>
    <message>
        <source>Active filters</source>
        <translation>Aktive Filter</translation>
    </message>
    <message>
        <source>Past this place</source>
        <translation>An dieser Stelle vorbei</translation>
    </message>
    <message>
        <source>Past one place</source>
        <translation>An einer Stelle vorbei</translation>
    </message>
</context>
<context>
    <name>velmora::ActivityList</name>
    <message>
        <source>All activity →</source>
        <translation>Alle Ereignisse →</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Letzte Ereignisse</translation>
    </message>
    <message>
        <source>Nothing yet. When a camera spots someone you don&apos;t know, it appears here.</source>
        <translation>Noch nichts. Entdeckt eine Kamera eine unbekannte Person, erscheint sie hier.</translation>
    </message>
</context>
<context>
    <name>velmora::AlertInset</name>
    <message>
        <source>%1 m from the pad</source>
        <translation>%1&#xa0;m vom Landeplatz</translation>
    </message>
    <message>
        <source>inside your boundary</source>
        <translation>innerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>outside your boundary</source>
        <translation>außerhalb Ihrer Grenze</translation>
    </message>
</context>
<context>
    <name>velmora::AnswerPanel</name>
    <message>
        <source>You must be able to see the drone while it flies. Nothing launches without your yes.</source>
        <translation>Sie müssen die Drohne im Flug stets sehen können. Ohne Ihr Ja startet nichts.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Drohne starten</translation>
    </message>
    <message>
        <source>velmora is silent — this picture is %1 old</source>
        <translation>velmora antwortet nicht – dieses Bild ist %1 alt</translation>
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
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Expires in</source>
        <translation>Läuft ab in</translation>
    </message>
    <message>
        <source>% unknown</source>
        <translation>% unbekannt</translation>
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
        <translation>Unbekannte Person vor der Kamera „%1“.</translation>
    </message>
    <message>
        <source>Someone you don&apos;t know is at the grounds.</source>
        <translation>Unbekannte Person auf dem Grundstück.</translation>
    </message>
    <message>
        <source>Launch the drone to keep an eye on them? It will fly at %1 m, follow about %2 m back, stay inside your boundary and come home on its own.</source>
        <translation>Drohne starten und die Person im Auge behalten? Die Drohne fliegt in %1&#xa0;m Höhe, folgt mit etwa %2&#xa0;m Abstand, bleibt innerhalb Ihrer Grenze und kehrt von selbst heim.</translation>
    </message>
</context>
<context>
    <name>velmora::ApprovalPicture</name>
    <message>
        <source>Grounds</source>
        <translation>Grundstück</translation>
    </message>
    <message>
        <source>Show the picture smaller</source>
        <translation>Bild verkleinern</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Bild vergrößern</translation>
    </message>
</context>
<context>
    <name>velmora::ArmSwitch</name>
    <message>
        <source>Disarm</source>
        <translation>Unscharf</translation>
    </message>
    <message>
        <source>Arm system</source>
        <translation>Scharf schalten</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>Noch unbekannt</translation>
    </message>
    <message>
        <source>Armed</source>
        <translation>Scharf</translation>
    </message>
    <message>
        <source>Disarmed</source>
        <translation>Unscharf</translation>
    </message>
    <message>
        <source>velmora itself is armed and disarmed at the server</source>
        <translation>velmora wird direkt am Server scharf und unscharf geschaltet</translation>
    </message>
</context>
<context>
    <name>velmora::BoundaryChartView</name>
    <message>
        <source>Metres inside your boundary</source>
        <translation>Meter innerhalb Ihrer Grenze</translation>
    </message>
</context>
<context>
    <name>velmora::CameraCard</name>
    <message>
        <source>Faces it doesn&apos;t recognise</source>
        <translation>Unbekannte Gesichter</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Any person, even without a face</source>
        <translation>Jede Person, auch ohne Gesicht</translation>
    </message>
    <message>
        <source>More alerts at night</source>
        <translation>Mehr Alarme bei Nacht</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>No alerts in the history</source>
        <translation>Keine Alarme im Verlauf</translation>
    </message>
    <message>
        <source>1 alert in the history</source>
        <translation>1 Alarm im Verlauf</translation>
    </message>
    <message>
        <source>%1 alerts in the history</source>
        <translation>%1 Alarme im Verlauf</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild: %1</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <translation>Zuletzt %1</translation>
    </message>
</context>
<context>
    <name>velmora::CamerasView</name>
    <message>
        <source>Cameras · UniFi Protect</source>
        <translation>Kameras · UniFi Protect</translation>
    </message>
    <message>
        <source>What sets off *an alert*.</source>
        <translation>Was *einen Alarm* auslöst.</translation>
    </message>
    <message>
        <source>Each camera can alert on faces it doesn&apos;t recognise, and optionally on any person it sees. People you&apos;ve named in UniFi Protect never trigger the drone.</source>
        <translation>Jede Kamera kann bei unbekannten Gesichtern Alarm geben, auf Wunsch auch bei jeder Person im Bild. Wer in UniFi Protect einen Namen hat, löst nie einen Drohneneinsatz aus.</translation>
    </message>
    <message>
        <source>No cameras yet</source>
        <translation>Noch keine Kameras</translation>
    </message>
    <message>
        <source>Waiting for velmora</source>
        <translation>Warten auf velmora</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Zu den Einstellungen</translation>
    </message>
    <message>
        <source>velmora&apos;s config has no cameras, so nobody on your grounds is noticed and you get no alerts. Add them there, and they appear here.</source>
        <translation>In der Konfiguration von velmora stehen keine Kameras: Niemand auf Ihrem Grundstück wird bemerkt, und Sie erhalten keine Alarme. Tragen Sie dort Kameras ein, dann erscheinen sie hier.</translation>
    </message>
    <message>
        <source>Your cameras appear here as soon as velmora answers.</source>
        <translation>Ihre Kameras erscheinen hier, sobald velmora antwortet.</translation>
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
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Quit Velmora</source>
        <translation>Velmora beenden</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>Show welcome</source>
        <translation>Begrüßung anzeigen</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drohne</translation>
    </message>
    <message>
        <source>Launch (approve)</source>
        <translation>Starten (freigeben)</translation>
    </message>
    <message>
        <source>Ignore alert</source>
        <translation>Alarm ignorieren</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Position halten</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Heimkehren</translation>
    </message>
</context>
<context>
    <name>velmora::ConnectionForm</name>
    <message>
        <source>Demo mode (built-in simulation)</source>
        <translation>Demo-Modus (integrierte Simulation)</translation>
    </message>
    <message>
        <source>velmora on my network</source>
        <translation>velmora in meinem Netzwerk</translation>
    </message>
    <message>
        <source>The computer running velmora serves the app API described in docs/APP_API.md.</source>
        <translation>Der Computer mit velmora stellt die in docs/APP_API.md beschriebene App-Schnittstelle bereit.</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Not stored: a port is a whole number from 1 to 65535.</source>
        <translation>Nicht gespeichert: Ein Port ist eine ganze Zahl von 1 bis 65535.</translation>
    </message>
</context>
<context>
    <name>velmora::DesktopNotifier</name>
    <message>
        <source>Open Velmora</source>
        <translation>Velmora öffnen</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Drohne starten</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
</context>
<context>
    <name>velmora::DroneBadge</name>
    <message>
        <source>No picture yet</source>
        <translation>Noch kein Bild</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>battery %1</source>
        <translation>Akku %1</translation>
    </message>
</context>
<context>
    <name>velmora::FlightControls</name>
    <message>
        <source>Controls</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Position halten</translation>
    </message>
    <message>
        <source>Resume following</source>
        <translation>Weiter folgen</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Heimkehren</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Jetzt landen</translation>
    </message>
    <message>
        <source>Simulate a visitor</source>
        <translation>Besuch simulieren</translation>
    </message>
    <message>
        <source>Approve or ignore the alert to continue.</source>
        <translation>Geben Sie den Start frei oder ignorieren Sie den Alarm.</translation>
    </message>
    <message>
        <source>Nothing to control — the drone launches only after you approve an alert.</source>
        <translation>Nichts zu steuern – die Drohne startet nur, wenn Sie nach einem Alarm den Start freigeben.</translation>
    </message>
</context>
<context>
    <name>velmora::HeatMap</name>
    <message>
        <source>The arrow keys move a mark, Enter shows the visits that passed within 2 m of it.</source>
        <translation>Die Pfeiltasten bewegen eine Markierung, die Eingabetaste zeigt die Besuche, die im Umkreis von 2&#xa0;m vorbeikamen.</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryFilters</name>
    <message>
        <source>Search the history</source>
        <translation>Verlauf durchsuchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Which visits</source>
        <translation>Welche Besuche</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Flown</source>
        <translation>Geflogen</translation>
    </message>
    <message>
        <source>Stayed docked</source>
        <translation>Nicht geflogen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Span of time</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Demo visits</source>
        <translation>Demo-Besuche</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>Alle Kameras</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7&#xa0;Tage</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30&#xa0;Tage</translation>
    </message>
    <message>
        <source>A year</source>
        <translation>Ein Jahr</translation>
    </message>
    <message>
        <source>All time</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>With demo</source>
        <translation>Mit Demo</translation>
    </message>
    <message>
        <source>No demo</source>
        <translation>Ohne Demo</translation>
    </message>
    <message>
        <source>Only demo</source>
        <translation>Nur Demo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>text that was searched</comment>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryList</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Visits</source>
        <translation>Besuche</translation>
    </message>
    <message>
        <source>Nothing yet. When a camera spots someone you don&apos;t know, it appears here.</source>
        <translation>Noch nichts. Entdeckt eine Kamera eine unbekannte Person, erscheint sie hier.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>No visits match.</source>
        <translation>Keine passenden Besuche.</translation>
    </message>
    <message>
        <source>Clear demo history</source>
        <translation>Demo-Verlauf löschen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Visit deleted.</source>
        <translation>Besuch gelöscht.</translation>
    </message>
    <message>
        <source>Every visit,
*on record*.</source>
        <translation>Jeder Besuch,
*festgehalten*.</translation>
    </message>
    <message>
        <source>What the history shows</source>
        <translation>Was der Verlauf zeigt</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Muster</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryModel</name>
    <message>
        <source>%1, demo</source>
        <translation>%1, Demo</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryView</name>
    <message>
        <source>No visit to replay yet</source>
        <translation>Noch kein Besuch im Verlauf</translation>
    </message>
    <message>
        <source>Every alert ends as a record here, with its paths on the map, its log and how it ended.</source>
        <translation>Jeder Alarm wird hier zum Eintrag: mit Wegen auf der Karte, Protokoll und Ausgang.</translation>
    </message>
    <message>
        <source>Simulate a visitor</source>
        <translation>Besuch simulieren</translation>
    </message>
    <message>
        <source>Record as JSON…</source>
        <translation>Eintrag als JSON…</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Paths and notices as CSV…</source>
        <translation>Wege und Meldungen als CSV…</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Map as a picture…</source>
        <translation>Karte als Bild…</translation>
    </message>
    <message>
        <source>PNG (*.png)</source>
        <translation>PNG (*.png)</translation>
    </message>
    <message>
        <source>The list as CSV…</source>
        <translation>Liste als CSV…</translation>
    </message>
    <message>
        <source>Visit report: %1, %2</source>
        <comment>outcome, times</comment>
        <translation>Besuchsbericht: %1, %2</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report (PDF)…</source>
        <translation>Bericht (PDF) …</translation>
    </message>
    <message>
        <source>Report of the list (PDF)…</source>
        <translation>Bericht über die Liste (PDF) …</translation>
    </message>
    <message>
        <source>Report of the visits</source>
        <translation>Bericht über die Besuche</translation>
    </message>
</context>
<context>
    <name>velmora::LandConfirmation</name>
    <message>
        <source>Land the drone where it is now?</source>
        <translation>Drohne an Ort und Stelle landen?</translation>
    </message>
    <message>
        <source>It will come down on the spot, not on its pad. Use this only if something is wrong.</source>
        <translation>Sie landet dort, wo sie gerade ist, nicht auf dem Landeplatz. Nutzen Sie dies nur, wenn etwas nicht stimmt.</translation>
    </message>
    <message>
        <source>Keep flying</source>
        <translation>Weiterfliegen</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Jetzt landen</translation>
    </message>
    <message>
        <source>%1 m up · %2 m from the pad</source>
        <translation>%1&#xa0;m hoch · %2&#xa0;m vom Landeplatz</translation>
    </message>
</context>
<context>
    <name>velmora::LastDays</name>
    <message>
        <source>Patterns →</source>
        <translation>Muster →</translation>
    </message>
    <message>
        <source>The last 30 days</source>
        <translation>Die letzten 30&#xa0;Tage</translation>
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
        <translation>%1 hoch, %2 Abstand,</translation>
    </message>
    <message>
        <source>%1 inside your boundary</source>
        <translation>%1 innerhalb der Grenze</translation>
    </message>
</context>
<context>
    <name>velmora::LinkBadge</name>
    <message>
        <source>Demo</source>
        <translation>Demo</translation>
    </message>
</context>
<context>
    <name>velmora::LiveRail</name>
    <message>
        <source>Nothing logged yet. Notices from the next flight appear here.</source>
        <translation>Noch nichts protokolliert. Meldungen des nächsten Flugs erscheinen hier.</translation>
    </message>
    <message>
        <source>Flight log</source>
        <translation>Flugprotokoll</translation>
    </message>
</context>
<context>
    <name>velmora::LiveView</name>
    <message>
        <source>Waiting for *velmora*</source>
        <translation>Warten auf *velmora*</translation>
    </message>
    <message>
        <source>The drone is *on its pad*</source>
        <translation>Die Drohne steht *auf dem Landeplatz*</translation>
    </message>
    <message>
        <source>Holding for *your decision*</source>
        <translation>Wartet auf *Ihre Entscheidung*</translation>
    </message>
    <message>
        <source>Taking *off*</source>
        <translation>Die Drohne *startet*</translation>
    </message>
    <message>
        <source>On its way to *the visitor*</source>
        <translation>Unterwegs *zum Besucher*</translation>
    </message>
    <message>
        <source>Following *at %1 m*</source>
        <translation>Folgt *mit %1&#xa0;m Abstand*</translation>
    </message>
    <message>
        <source>Following *the visitor*</source>
        <translation>Folgt *dem Besucher*</translation>
    </message>
    <message>
        <source>Holding *position*</source>
        <translation>Hält *Position*</translation>
    </message>
    <message>
        <source>Coming *home*</source>
        <translation>Kehrt *heim*</translation>
    </message>
    <message>
        <source>Landing *on its pad*</source>
        <translation>Landet *auf dem Landeplatz*</translation>
    </message>
    <message>
        <source>Landing *where it is*</source>
        <translation>Landet *an Ort und Stelle*</translation>
    </message>
    <message>
        <source>Live flight</source>
        <translation>Live-Flug</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindow</name>
    <message>
        <source>Clear the demo history?</source>
        <translation>Demo-Verlauf löschen?</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Clear demo history</source>
        <translation>Demo-Verlauf löschen</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>Die Datei wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choose another folder and export it again.</source>
        <translation>Wählen Sie einen anderen Ordner und exportieren Sie erneut.</translation>
    </message>
    <message>
        <source>One rehearsed visit goes. Visits that were really flown stay.</source>
        <translation>Ein simulierter Besuch wird gelöscht. Wirklich geflogene Besuche bleiben erhalten.</translation>
    </message>
    <message>
        <source>%1 rehearsed visits go. Visits that were really flown stay.</source>
        <translation>%1 simulierte Besuche werden gelöscht. Wirklich geflogene Besuche bleiben erhalten.</translation>
    </message>
    <message>
        <source>The report is saved.</source>
        <translation>Der Bericht ist gespeichert.</translation>
    </message>
</context>
<context>
    <name>velmora::MapCard</name>
    <message>
        <source>Your grounds, live</source>
        <translation>Ihr Grundstück, live</translation>
    </message>
    <message>
        <source>%1 m buffer inside your boundary</source>
        <translation>%1&#xa0;m Puffer innerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drohne</translation>
    </message>
    <message>
        <source>Visitor</source>
        <translation>Besucher</translation>
    </message>
    <message>
        <source>Camera view</source>
        <translation>Sichtfeld</translation>
    </message>
</context>
<context>
    <name>velmora::NoteRow</name>
    <message>
        <source>Keep the drone in sight while it flies</source>
        <translation>Behalten Sie die fliegende Drohne stets im Blick</translation>
    </message>
    <message>
        <source>Holding at your boundary</source>
        <translation>Hält an Ihrer Grenze</translation>
    </message>
</context>
<context>
    <name>velmora::NowGroup</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Launch (approve)</source>
        <translation>Starten (freigeben)</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>To visitor</source>
        <translation>Zur Person</translation>
    </message>
    <message>
        <source>From pad</source>
        <translation>Vom Platz</translation>
    </message>
    <message>
        <source>Last known</source>
        <translation>Zuletzt bekannt</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>Inside your boundary</source>
        <translation>Innerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>Outside your boundary</source>
        <translation>Außerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild: %1</translation>
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
        <translation>Übersicht</translation>
    </message>
</context>
<context>
    <name>velmora::PatternsPane</name>
    <message>
        <source>Patterns appear after three visits.</source>
        <translation>Muster erscheinen ab drei Besuchen.</translation>
    </message>
    <message>
        <source>When they came</source>
        <translation>Wann sie kamen</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <comment>form of a date</comment>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Patterns · %1 to %2</source>
        <comment>dates</comment>
        <translation>Muster · %1 bis %2</translation>
    </message>
</context>
<context>
    <name>velmora::PatternsSummary</name>
    <message>
        <source>How they ended</source>
        <translation>Wie sie endeten</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Nach Kamera</translation>
    </message>
    <message>
        <source>%1 of %2 flown</source>
        <translation>%1 von %2 geflogen</translation>
    </message>
</context>
<context>
    <name>velmora::PhaseTimeline</name>
    <message>
        <source>Spotted</source>
        <translation>Entdeckt</translation>
    </message>
    <message>
        <source>Approved</source>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>On its way</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Kehrt heim</translation>
    </message>
    <message>
        <source>Landed</source>
        <translation>Gelandet</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <source>No mission under way</source>
        <translation>Derzeit kein Einsatz</translation>
    </message>
</context>
<context>
    <name>velmora::RecordDetail</name>
    <message>
        <source>Replay</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Delete this visit</source>
        <translation>Diesen Besuch löschen</translation>
    </message>
</context>
<context>
    <name>velmora::RecordFacts</name>
    <message>
        <source>What happened</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Furthest out</source>
        <translation>Max. Entfernung</translation>
    </message>
    <message>
        <source>Battery used</source>
        <translation>Akkuverbrauch</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Abgleich</translation>
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
        <translation>% unbekannt</translation>
    </message>
    <message>
        <source>The drone did not fly.</source>
        <translation>Die Drohne ist nicht geflogen.</translation>
    </message>
    <message>
        <source>Detected %1, ended %2</source>
        <translation>Erkannt %1, beendet %2</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild: %1</translation>
    </message>
</context>
<context>
    <name>velmora::RecordList</name>
    <message>
        <source>Visits</source>
        <translation>Besuche</translation>
    </message>
</context>
<context>
    <name>velmora::ReplayBar</name>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Replay speed</source>
        <translation>Wiedergabetempo</translation>
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
        <translation>Wiedergabezeit</translation>
    </message>
</context>
<context>
    <name>velmora::ReportProgress</name>
    <message>
        <source>Making the report</source>
        <translation>Der Bericht wird erstellt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 visits go into the report. The file is complete when all is done.</source>
        <translation>%1 Besuche kommen in den Bericht. Die Datei ist vollständig, wenn alles fertig ist.</translation>
    </message>
</context>
<context>
    <name>velmora::ResponseTimes</name>
    <message>
        <source>Response</source>
        <translation>Reaktion</translation>
    </message>
    <message>
        <source>Seen to landed %1</source>
        <translation>Bis zur Landung %1</translation>
    </message>
    <message>
        <source>Seen to the end %1</source>
        <translation>Bis zum Ende %1</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsView</name>
    <message>
        <source>Guided by this computer</source>
        <translation>Von diesem Computer geführt</translation>
    </message>
    <message>
        <source>Guided by this Mac</source>
        <translation>Von diesem Mac geführt</translation>
    </message>
    <message>
        <source>DJI tracking hand-over</source>
        <translation>Übergabe an DJI-Verfolgung</translation>
    </message>
    <message>
        <source>Your cameras locate the visitor and Velmora steers the drone. Works with any supported drone.</source>
        <translation>Ihre Kameras orten den Besucher, und Velmora steuert die Drohne. Funktioniert mit jeder unterstützten Drohne.</translation>
    </message>
    <message>
        <source>Velmora flies the drone to the visitor, then hands over to the drone&apos;s own tracking and takes back control near the boundary. Experimental: not yet confirmed on the Mini 4 Pro.</source>
        <translation>Velmora fliegt die Drohne zum Besucher, übergibt dann an die Verfolgungsfunktion der Drohne und übernimmt nahe der Grenze wieder die Steuerung. Experimentell: mit der Mini 4 Pro noch nicht bestätigt.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>How the drone *behaves*.</source>
        <translation>Wie sich die Drohne *verhält*.</translation>
    </message>
    <message>
        <source>These limits are enforced by velmora&apos;s safety layer, not just shown here.</source>
        <translation>Nicht nur angezeigt: Die Sicherheitsschicht von velmora erzwingt diese Grenzwerte.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Flight</source>
        <translation>Flug</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Heimkehr</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Verfolgung</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>The rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über Velmora</translation>
    </message>
    <message>
        <source>Flight height</source>
        <translation>Flughöhe</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Never below</source>
        <translation>Nie tiefer als</translation>
    </message>
    <message>
        <source>Follow distance</source>
        <translation>Folgeabstand</translation>
    </message>
    <message>
        <source>Stay this far inside</source>
        <translation>Mindestabstand zur Grenze</translation>
    </message>
    <message>
        <source>The boundary itself comes from velmora&apos;s config (your site plan). In demo mode it&apos;s the hedge line on the map.</source>
        <translation>Die Grenze selbst stammt aus der Konfiguration von velmora (Ihr Lageplan). Im Demo-Modus ist es die Hecke auf der Karte.</translation>
    </message>
    <message>
        <source>Return when battery is below</source>
        <translation>Heimkehr bei Akku unter</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Don&apos;t launch if wind is over</source>
        <translation>Kein Start bei Wind über</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Alert expires after</source>
        <translation>Alarm läuft ab nach</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Alert on this computer</source>
        <translation>Alarm auf diesem Computer</translation>
    </message>
    <message>
        <source>Alert on this Mac</source>
        <translation>Alarm auf diesem Mac</translation>
    </message>
    <message>
        <source>Phone (ntfy topic)</source>
        <translation>Handy (ntfy-Thema)</translation>
    </message>
    <message>
        <source>e.g. velmora-home</source>
        <translation>z.&#xa0;B. velmora-home</translation>
    </message>
    <message>
        <source>Every launch needs your approval. There is no automatic launch.</source>
        <translation>Jeder Start erfordert Ihre Freigabe. Es gibt keinen automatischen Start.</translation>
    </message>
    <message>
        <source>Keep the drone in sight while it flies (UK Open category).</source>
        <translation>Behalten Sie die fliegende Drohne stets im Blick (offene Kategorie, Großbritannien).</translation>
    </message>
    <message>
        <source>Flying with no one in control would need a CAA Operational Authorisation.</source>
        <translation>Ein Flug, den niemand kontrolliert, bräuchte eine Betriebsgenehmigung der CAA.</translation>
    </message>
    <message>
        <source>Velmora 1.0 · consumer app for the velmora framework</source>
        <translation>Velmora 1.0 · Anwender-App für das velmora-Framework</translation>
    </message>
    <message>
        <source>Set in Inter, used under the SIL Open Font License.</source>
        <translation>Schrift: Inter, verwendet unter der SIL Open Font License.</translation>
    </message>
    <message>
        <source>Start Velmora when I log in</source>
        <translation>Velmora beim Anmelden starten</translation>
    </message>
    <message>
        <source>Show welcome again</source>
        <translation>Begrüßung erneut anzeigen</translation>
    </message>
    <message>
        <source>Open data folder</source>
        <translation>Datenordner öffnen</translation>
    </message>
    <message>
        <source>Every command for the drone is in journal.jsonl, in the data folder.</source>
        <translation>Jeder Befehl an die Drohne steht in journal.jsonl im Datenordner.</translation>
    </message>
</context>
<context>
    <name>velmora::Sidebar</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Live flight</source>
        <translation>Live-Flug</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>velmora::SiteMap</name>
    <message>
        <source>Waiting for velmora</source>
        <translation>Warten auf velmora</translation>
    </message>
</context>
<context>
    <name>velmora::StaleBanner</name>
    <message>
        <source>Connection settings</source>
        <translation>Zu den Einstellungen</translation>
    </message>
    <message>
        <source>Open live flight →</source>
        <translation>Zum Live-Flug →</translation>
    </message>
    <message>
        <source>Picture %1 old</source>
        <translation>Bild %1 alt</translation>
    </message>
    <message>
        <source>Commands may not arrive.</source>
        <translation>Befehle können verloren gehen.</translation>
    </message>
    <message>
        <source>Commands may not arrive until the link is back.</source>
        <translation>Ohne Verbindung können Befehle verloren gehen.</translation>
    </message>
    <message>
        <source>No picture received yet.</source>
        <translation>Noch kein Bild empfangen.</translation>
    </message>
    <message>
        <source>This picture is *%1 old*, received %2.</source>
        <translation>Dieses Bild ist *%1 alt*, empfangen %2.</translation>
    </message>
    <message>
        <source>Picture *%1 old*.</source>
        <translation>Bild *%1 alt*.</translation>
    </message>
    <message>
        <source>*%1* — picture *%2 old*.</source>
        <translation>*%1* – Bild *%2 alt*.</translation>
    </message>
    <message>
        <source>Velmora tries again twice a second.</source>
        <translation>Velmora versucht es zweimal pro Sekunde erneut.</translation>
    </message>
    <message>
        <source>Last received at %1.</source>
        <translation>Zuletzt empfangen um %1.</translation>
    </message>
</context>
<context>
    <name>velmora::StatusStrip</name>
    <message>
        <source>This computer + phone</source>
        <translation>Computer + Handy</translation>
    </message>
    <message>
        <source>This Mac + phone</source>
        <translation>Mac + Handy</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Dieser Mac</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Handy</translation>
    </message>
    <message>
        <source>This window only</source>
        <translation>Nur dieses Fenster</translation>
    </message>
    <message>
        <source>Drone</source>
        <translation>Drohne</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>%1% battery</source>
        <translation>Akku %1&#xa0;%</translation>
    </message>
    <message>
        <source>signal %1%</source>
        <translation>Signal %1&#xa0;%</translation>
    </message>
    <message>
        <source>On its pad</source>
        <translation>Am Landeplatz</translation>
    </message>
    <message>
        <source>%1 offline</source>
        <translation>%1 offline</translation>
    </message>
    <message>
        <source>%1 cameras offline</source>
        <translation>%1 Kameras offline</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 von %2 online</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1&#xa0;km/h</translation>
    </message>
    <message>
        <source>Too windy to fly</source>
        <translation>Zu windig zum Fliegen</translation>
    </message>
    <message>
        <source>Fine to fly (limit %1 km/h)</source>
        <translation>Flug möglich (bis %1&#xa0;km/h)</translation>
    </message>
    <message>
        <source>Unknown faces trigger an alert</source>
        <translation>Alarm bei fremden Gesichtern</translation>
    </message>
    <message>
        <source>Every launch needs your yes</source>
        <translation>Kein Start ohne Ihr Ja</translation>
    </message>
</context>
<context>
    <name>velmora::Telemetry</name>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>To visitor</source>
        <translation>Zur Person</translation>
    </message>
    <message>
        <source>From pad</source>
        <translation>Vom Platz</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Wind</translation>
    </message>
    <message>
        <source>Flight time</source>
        <translation>Flugzeit</translation>
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
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>velmora::ToggleRow</name>
    <message>
        <source>Will not alert while offline</source>
        <translation>Kein Alarm, solange offline</translation>
    </message>
</context>
<context>
    <name>velmora::Tray</name>
    <message>
        <source>Launch drone</source>
        <translation>Drohne starten</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Heimkehren</translation>
    </message>
    <message>
        <source>Open Velmora</source>
        <translation>Velmora öffnen</translation>
    </message>
    <message>
        <source>Quit Velmora</source>
        <translation>Velmora beenden</translation>
    </message>
    <message>
        <source>Waiting for velmora</source>
        <translation>Warten auf velmora</translation>
    </message>
    <message>
        <source>Armed</source>
        <translation>Scharf</translation>
    </message>
    <message>
        <source>Disarmed</source>
        <translation>Unscharf</translation>
    </message>
    <message>
        <source>Disarm</source>
        <translation>Unscharf schalten</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Scharf schalten</translation>
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
        <translation>Besuche nach Wochentag und Stunde</translation>
    </message>
</context>
<context>
    <name>velmora::VisitOffers</name>
    <message>
        <source>Simulate a visitor</source>
        <translation>Besuch simulieren</translation>
    </message>
</context>
<context>
    <name>velmora::VisitorCard</name>
    <message>
        <source>inside your boundary</source>
        <translation>innerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>outside your boundary</source>
        <translation>außerhalb Ihrer Grenze</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild: %1</translation>
    </message>
</context>
<context>
    <name>velmora::WelcomeView</name>
    <message>
        <source>A second pair of eyes over *your grounds*.</source>
        <translation>Ein zweites Paar Augen für *Ihr&#xa0;Grundstück*.</translation>
    </message>
    <message>
        <source>Your cameras spot someone they don&apos;t recognise</source>
        <translation>Ihre Kameras entdecken eine unbekannte Person</translation>
    </message>
    <message>
        <source>UniFi Protect face and person detection. Family and friends you&apos;ve added are ignored.</source>
        <translation>Gesichts- und Personenerkennung von UniFi Protect. Familie und Freunde, die Sie eingetragen haben, werden ignoriert.</translation>
    </message>
    <message>
        <source>You decide</source>
        <translation>Sie entscheiden</translation>
    </message>
    <message>
        <source>An alert arrives on this computer and your phone. The drone only launches when you say yes.</source>
        <translation>Ein Alarm erscheint auf diesem Computer und Ihrem Handy. Die Drohne startet nur, wenn Sie Ja sagen.</translation>
    </message>
    <message>
        <source>An alert arrives on this Mac and your phone. The drone only launches when you say yes.</source>
        <translation>Ein Alarm erscheint auf diesem Mac und Ihrem Handy. Die Drohne startet nur, wenn Sie Ja sagen.</translation>
    </message>
    <message>
        <source>The drone keeps watch, then comes home</source>
        <translation>Die Drohne wacht und kehrt dann heim</translation>
    </message>
    <message>
        <source>It follows from about 15 m at 15 m high, never leaves your boundary, rides out gusts and lands on its pad.</source>
        <translation>Sie folgt mit etwa 15&#xa0;m Abstand in 15&#xa0;m Höhe, überschreitet nie Ihre Grenze, trotzt Böen und landet auf ihrem Landeplatz.</translation>
    </message>
    <message>
        <source>Demo mode runs a built-in simulation of the drone, cameras and your grounds, so you can try everything now.</source>
        <translation>Der Demo-Modus simuliert Drohne, Kameras und Ihr Grundstück. So können Sie sofort alles ausprobieren.</translation>
    </message>
    <message>
        <source>Welcome to Velmora</source>
        <translation>Willkommen bei Velmora</translation>
    </message>
    <message>
        <source>Explore in demo mode</source>
        <translation>Im Demo-Modus erkunden</translation>
    </message>
    <message>
        <source>Connect to velmora</source>
        <translation>Mit velmora verbinden</translation>
    </message>
</context>
<context>
    <name>velmora::Words</name>
    <message>
        <source>The host or port in Settings is not a valid address</source>
        <translation>Host oder Port in den Einstellungen ungültig</translation>
    </message>
    <message>
        <source>The host was not found</source>
        <translation>Host nicht gefunden</translation>
    </message>
    <message>
        <source>The connection was refused</source>
        <translation>Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>The network is unreachable</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
    <message>
        <source>The connection timed out</source>
        <translation>Zeitüberschreitung</translation>
    </message>
    <message>
        <source>The server sent a bad response</source>
        <translation>Antwort des Servers fehlerhaft</translation>
    </message>
    <message>
        <source>The server&apos;s state could not be read (%1)</source>
        <translation>Serverzustand nicht lesbar (%1)</translation>
    </message>
    <message>
        <source>Linked to velmora %1</source>
        <translation>Verbunden mit velmora %1</translation>
    </message>
    <message>
        <source>Can&apos;t reach velmora — %1</source>
        <translation>Keine Verbindung zu velmora – %1</translation>
    </message>
    <message>
        <source>Demo mode</source>
        <translation>Demo-Modus</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>a camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Someone you don&apos;t know is at the %1</source>
        <translation>Unbekannte Person: %1</translation>
    </message>
    <message>
        <source>Launch the drone to keep an eye on them?</source>
        <translation>Drohne starten und die Person im Auge behalten?</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <comment>form of a date</comment>
        <translation>ddd, d. MMM, HH:mm</translation>
    </message>
    <message>
        <source>No answer since %1. No alert arrives until the link is back.</source>
        <translation>Keine Antwort seit %1. Es kommt kein Alarm an, bis die Verbindung wieder steht.</translation>
    </message>
    <message>
        <source>Offline at least since %1. It raises no alert until it is back.</source>
        <translation>Mindestens seit %1 offline. Diese Kamera löst keinen Alarm aus, bis sie wieder online ist.</translation>
    </message>
    <message>
        <source>%1 raise no alert until they are back.</source>
        <translation>%1 lösen keinen Alarm aus, bis sie wieder online sind.</translation>
    </message>
    <message>
        <source>Velmora can&apos;t reach your server</source>
        <translation>Velmora erreicht Ihren Server nicht</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <translation>%1 ist offline</translation>
    </message>
    <message>
        <source>%1 cameras are offline</source>
        <translation>%1 Kameras sind offline</translation>
    </message>
    <message>
        <source>Docked</source>
        <translation>Angedockt</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>Wartet auf Sie</translation>
    </message>
    <message>
        <source>Taking off</source>
        <translation>Startet</translation>
    </message>
    <message>
        <source>On its way</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Holding position</source>
        <translation>Hält Position</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>Kehrt heim</translation>
    </message>
    <message>
        <source>Landing</source>
        <translation>Landet</translation>
    </message>
    <message>
        <source>Launch drone</source>
        <translation>Drohne starten</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Hold position</source>
        <translation>Position halten</translation>
    </message>
    <message>
        <source>Resume following</source>
        <translation>Weiter folgen</translation>
    </message>
    <message>
        <source>Return home</source>
        <translation>Heimkehren</translation>
    </message>
    <message>
        <source>Land now</source>
        <translation>Jetzt landen</translation>
    </message>
    <message>
        <source>velmora did not confirm “%1”. %2.</source>
        <translation>velmora hat „%1“ nicht bestätigt. %2.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Bitte wiederholen</translation>
    </message>
    <message>
        <source>%1. Try again.</source>
        <translation>%1. Bitte wiederholen.</translation>
    </message>
    <message>
        <source>velmora has not answered</source>
        <translation>velmora hat nicht geantwortet</translation>
    </message>
    <message>
        <source>Sent…</source>
        <translation>Gesendet…</translation>
    </message>
    <message>
        <source>under your return level of %1</source>
        <translation>unter Ihrem Heimkehrwert&#xa0;(%1)</translation>
    </message>
    <message>
        <source>over your limit of %1</source>
        <translation>über Ihrem Limit&#xa0;(%1)</translation>
    </message>
    <message>
        <source>Visitor on the driveway</source>
        <translation>Besucher in der Einfahrt</translation>
    </message>
    <message>
        <source>Visitor in the east garden</source>
        <translation>Besucher im Ostgarten</translation>
    </message>
    <message>
        <source>Visitor crossing the front lawn</source>
        <translation>Besucher quert den Vorgarten</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <comment>form of a date</comment>
        <translation>dddd, d. MMMM</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>dddd, d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Gestern %1</translation>
    </message>
    <message>
        <source>ddd HH:mm</source>
        <comment>form of a date</comment>
        <translation>ddd HH:mm</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d. MMM yyyy</translation>
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
        <translation>Landeplatz</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1&#xa0;m</translation>
    </message>
    <message>
        <source>Replay: nobody was tracked.</source>
        <translation>Wiedergabe: Es wurde niemand erfasst.</translation>
    </message>
    <message>
        <source>Replay of the visitor&apos;s path; the drone stayed on its pad.</source>
        <translation>Wiedergabe: Weg des Besuchers; die Drohne blieb auf dem Landeplatz.</translation>
    </message>
    <message>
        <source>Replay of the visitor&apos;s path and of the drone&apos;s, at most %1 m from its pad.</source>
        <translation>Wiedergabe: Wege von Besucher und Drohne, höchstens %1&#xa0;m vom Landeplatz.</translation>
    </message>
    <message>
        <source>The drone is on its pad.</source>
        <translation>Die Drohne steht auf dem Landeplatz.</translation>
    </message>
    <message>
        <source>The drone is at %1 m height, %2 m from its pad and %3 m from the boundary.</source>
        <translation>Die Drohne ist in %1&#xa0;m Höhe, %2&#xa0;m vom Landeplatz und %3&#xa0;m von der Grenze entfernt.</translation>
    </message>
    <message>
        <source>Unknown person</source>
        <translation>Unbekannte Person</translation>
    </message>
    <message>
        <source>%1 is %2 m from the drone, %3 m inside the boundary.</source>
        <translation>%1: %2&#xa0;m von der Drohne entfernt, %3&#xa0;m innerhalb der Grenze.</translation>
    </message>
    <message>
        <source>%1 is %2 m from the drone, outside the boundary.</source>
        <translation>%1: %2&#xa0;m von der Drohne entfernt, außerhalb der Grenze.</translation>
    </message>
    <message>
        <source>Map of your grounds.</source>
        <translation>Karte Ihres Grundstücks.</translation>
    </message>
    <message>
        <source>Nobody is being watched.</source>
        <translation>Niemand wird beobachtet.</translation>
    </message>
    <message>
        <source>Your boundary</source>
        <translation>Ihre Grenze</translation>
    </message>
    <message>
        <source>%1 m buffer</source>
        <translation>%1&#xa0;m Puffer</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Gekommen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gegangen</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Zuletzt gesehen</translation>
    </message>
    <message>
        <source>%1 m from the pad</source>
        <translation>%1&#xa0;m vom Landeplatz</translation>
    </message>
    <message>
        <source>over its pad</source>
        <translation>über dem Landeplatz</translation>
    </message>
    <message>
        <source>%1 m out</source>
        <translation>%1&#xa0;m entfernt</translation>
    </message>
    <message>
        <source>No camera is looking for people yet.</source>
        <translation>Noch achtet keine Kamera auf Personen.</translation>
    </message>
    <message>
        <source>1 camera is looking for people it doesn&apos;t recognise.</source>
        <translation>1 Kamera achtet auf unbekannte Personen.</translation>
    </message>
    <message>
        <source>%1 cameras are looking for people they don&apos;t recognise.</source>
        <translation>%1 Kameras achten auf unbekannte Personen.</translation>
    </message>
    <message>
        <source>Waiting for *velmora*.</source>
        <translation>Warten auf *velmora*.</translation>
    </message>
    <message>
        <source>Your drone is *on patrol*.</source>
        <translation>Ihre Drohne ist *im Einsatz*.</translation>
    </message>
    <message>
        <source>Someone is *on your grounds*.</source>
        <translation>Jemand ist *auf Ihrem Grundstück*.</translation>
    </message>
    <message>
        <source>Your grounds are *watched*.</source>
        <translation>Ihr Grundstück wird *bewacht*.</translation>
    </message>
    <message>
        <source>Velmora is *disarmed*.</source>
        <translation>Velmora ist *unscharf geschaltet*.</translation>
    </message>
    <message>
        <source>No picture received yet.</source>
        <translation>Noch kein Bild empfangen.</translation>
    </message>
    <message>
        <source>%1, %2. It stays inside your boundary and comes home on its own.</source>
        <translation>%1, %2. Sie bleibt innerhalb Ihrer Grenze und kehrt von selbst heim.</translation>
    </message>
    <message>
        <source>Cameras still log people they don&apos;t recognise, but the drone won&apos;t offer to launch.</source>
        <translation>Kameras protokollieren weiterhin Unbekannte, aber die Drohne bietet keinen Start an.</translation>
    </message>
    <message>
        <source>The drone is on its pad and only flies when you say so.</source>
        <translation>Die Drohne steht auf dem Landeplatz und fliegt nur, wenn Sie es sagen.</translation>
    </message>
    <message>
        <source>%1 s to answer</source>
        <translation>noch %1&#xa0;s zum Antworten</translation>
    </message>
    <message>
        <source>%1 m from the visitor</source>
        <translation>%1&#xa0;m vom Besucher</translation>
    </message>
    <message>
        <source>%1% battery</source>
        <translation>Akku %1&#xa0;%</translation>
    </message>
    <message>
        <source>%1 camera</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>%1% sure it&apos;s no one you know</source>
        <translation>Zu %1&#xa0;% unbekannt</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>day, time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Demo</source>
        <translation>Demo</translation>
    </message>
    <message>
        <source>on the alert&apos;s card</source>
        <translation>auf der Karte des Alarms</translation>
    </message>
    <message>
        <source>on the overview</source>
        <translation>in der Übersicht</translation>
    </message>
    <message>
        <source>on Live flight</source>
        <translation>unter „Live-Flug“</translation>
    </message>
    <message>
        <source>from the menu</source>
        <translation>im Menü</translation>
    </message>
    <message>
        <source>with the keyboard shortcut</source>
        <translation>mit dem Tastenkürzel</translation>
    </message>
    <message>
        <source>from the tray</source>
        <translation>im Infobereich</translation>
    </message>
    <message>
        <source>from the notification</source>
        <translation>in der Benachrichtigung</translation>
    </message>
    <message>
        <source>in the self-check</source>
        <translation>im Selbsttest</translation>
    </message>
    <message>
        <source>You approved %1 after the alert.</source>
        <translation>Sie haben den Start %1 nach dem Alarm freigegeben.</translation>
    </message>
    <message>
        <source>You ignored the alert after %1.</source>
        <translation>Sie haben den Alarm nach %1 ignoriert.</translation>
    </message>
    <message>
        <source>You approved %1, %2 after the alert.</source>
        <translation>Sie haben den Start %1 freigegeben, %2 nach dem Alarm.</translation>
    </message>
    <message>
        <source>You ignored the alert %1, after %2.</source>
        <translation>Sie haben den Alarm %1 ignoriert, nach %2.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>name, visits</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No visitor was seen walking</source>
        <translation>Kein Besucher ist gegangen</translation>
    </message>
    <message>
        <source>Where they walked: one visit</source>
        <translation>Wo sie gingen: ein Besuch</translation>
    </message>
    <message>
        <source>Where they walked: from one visit to %1</source>
        <translation>Wo sie gingen: von einem Besuch bis %1</translation>
    </message>
    <message>
        <source>Where they walked</source>
        <translation>Wo sie gingen</translation>
    </message>
    <message>
        <source>after midnight on %1s</source>
        <comment>weekday; when visits come</comment>
        <translation>nach Mitternacht an %1en</translation>
    </message>
    <message>
        <source>on %1 mornings</source>
        <comment>weekday; when visits come</comment>
        <translation>an %1vormittagen</translation>
    </message>
    <message>
        <source>on %1 afternoons</source>
        <comment>weekday; when visits come</comment>
        <translation>an %1nachmittagen</translation>
    </message>
    <message>
        <source>on %1 evenings</source>
        <comment>weekday; when visits come</comment>
        <translation>an %1abenden</translation>
    </message>
    <message>
        <source>late on %1s</source>
        <comment>weekday; when visits come</comment>
        <translation>spät an %1en</translation>
    </message>
    <message>
        <source>on the driveway</source>
        <comment>where visits were</comment>
        <translation>in der Einfahrt</translation>
    </message>
    <message>
        <source>on the front lawn</source>
        <comment>where visits were</comment>
        <translation>im Vorgarten</translation>
    </message>
    <message>
        <source>in the east garden</source>
        <comment>where visits were</comment>
        <translation>im Ostgarten</translation>
    </message>
    <message>
        <source>at the %1 camera</source>
        <comment>where visits were</comment>
        <translation>an der Kamera „%1“</translation>
    </message>
    <message>
        <source>No visits in 7 days</source>
        <translation>Keine Besuche in 7&#xa0;Tagen</translation>
    </message>
    <message>
        <source>1 visit in 7 days</source>
        <translation>1&#xa0;Besuch in 7&#xa0;Tagen</translation>
    </message>
    <message>
        <source>%1 visits in 7 days</source>
        <translation>%1&#xa0;Besuche in 7&#xa0;Tagen</translation>
    </message>
    <message>
        <source>No visits in 30 days</source>
        <translation>Keine Besuche in 30&#xa0;Tagen</translation>
    </message>
    <message>
        <source>1 visit in 30 days</source>
        <translation>1&#xa0;Besuch in 30&#xa0;Tagen</translation>
    </message>
    <message>
        <source>%1 visits in 30 days</source>
        <translation>%1&#xa0;Besuche in 30&#xa0;Tagen</translation>
    </message>
    <message>
        <source>No visits in a year</source>
        <translation>Keine Besuche in einem Jahr</translation>
    </message>
    <message>
        <source>1 visit in a year</source>
        <translation>1&#xa0;Besuch in einem Jahr</translation>
    </message>
    <message>
        <source>%1 visits in a year</source>
        <translation>%1&#xa0;Besuche in einem Jahr</translation>
    </message>
    <message>
        <source>No visits on file</source>
        <translation>Keine Besuche im Verlauf</translation>
    </message>
    <message>
        <source>1 visit on file</source>
        <translation>1&#xa0;Besuch im Verlauf</translation>
    </message>
    <message>
        <source>%1 visits on file</source>
        <translation>%1&#xa0;Besuche im Verlauf</translation>
    </message>
    <message>
        <source>%1, all *%2*.</source>
        <comment>visits; when or where</comment>
        <translation>%1, alle *%2*.</translation>
    </message>
    <message>
        <source>%1, most *%2*.</source>
        <comment>visits; when or where</comment>
        <translation>%1, die meisten *%2*.</translation>
    </message>
    <message>
        <source>%1, %3 of them *%2*.</source>
        <comment>visits; when or where; number</comment>
        <translation>%1, %3 davon *%2*.</translation>
    </message>
    <message>
        <source>%1, all %2 *%3*.</source>
        <comment>visits; when; where</comment>
        <translation>%1, alle %2 *%3*.</translation>
    </message>
    <message>
        <source>%1, most %2 *%3*.</source>
        <comment>visits; when; where</comment>
        <translation>%1, die meisten %2 *%3*.</translation>
    </message>
    <message>
        <source>%1, %4 of them %2 *%3*.</source>
        <comment>visits; when; where; number</comment>
        <translation>%1, %4 davon %2 *%3*.</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>visits</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No visits</source>
        <translation>Keine Besuche</translation>
    </message>
    <message>
        <source>1 visit</source>
        <translation>1&#xa0;Besuch</translation>
    </message>
    <message>
        <source>%1 visits</source>
        <translation>%1&#xa0;Besuche</translation>
    </message>
    <message>
        <source>no visits</source>
        <translation>keine Besuche</translation>
    </message>
    <message>
        <source>one visit</source>
        <translation>ein Besuch</translation>
    </message>
    <message>
        <source>two visits</source>
        <translation>zwei Besuche</translation>
    </message>
    <message>
        <source>three visits</source>
        <translation>drei Besuche</translation>
    </message>
    <message>
        <source>four visits</source>
        <translation>vier Besuche</translation>
    </message>
    <message>
        <source>five visits</source>
        <translation>fünf Besuche</translation>
    </message>
    <message>
        <source>six visits</source>
        <translation>sechs Besuche</translation>
    </message>
    <message>
        <source>seven visits</source>
        <translation>sieben Besuche</translation>
    </message>
    <message>
        <source>eight visits</source>
        <translation>acht Besuche</translation>
    </message>
    <message>
        <source>nine visits</source>
        <translation>neun Besuche</translation>
    </message>
    <message>
        <source>ten visits</source>
        <translation>zehn Besuche</translation>
    </message>
    <message>
        <source>eleven visits</source>
        <translation>elf Besuche</translation>
    </message>
    <message>
        <source>twelve visits</source>
        <translation>zwölf Besuche</translation>
    </message>
    <message>
        <source>%1 of %2 on %3s between %4 and %5</source>
        <comment>numbers; weekday; hours</comment>
        <translation>%1 von %2 an %3en zwischen %4 und %5&#xa0;Uhr</translation>
    </message>
    <message>
        <source>%1 %2, %3</source>
        <comment>weekday; hour; visits</comment>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>%1 could not be written: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>it would be empty</source>
        <translation>die Datei wäre leer</translation>
    </message>
    <message>
        <source>It was nearest to the boundary at %1.</source>
        <translation>Am nächsten war sie der Grenze um %1.</translation>
    </message>
    <message>
        <source>The drone was %1 m outside the boundary at the furthest and was %2 in the %3 m buffer.</source>
        <translation>Die Drohne kam bis zu %1&#xa0;m über die Grenze hinaus und war %2 im Puffer von %3&#xa0;m.</translation>
    </message>
    <message>
        <source>The drone stayed at least %1 m inside the boundary and was %2 in the %3 m buffer.</source>
        <translation>Die Drohne blieb mindestens %1&#xa0;m innerhalb der Grenze und war %2 im Puffer von %3&#xa0;m.</translation>
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
        <translation>kein Alarm verlangte eine</translation>
    </message>
    <message>
        <source>%1 of %2 alerts expired</source>
        <translation>%1 von %2 Alarmen abgelaufen</translation>
    </message>
    <message>
        <source>1 answer; %1 of %2 alerts expired</source>
        <translation>1 Antwort; %1 von %2 Alarmen abgelaufen</translation>
    </message>
    <message>
        <source>median of %1 answers; %2 of %3 alerts expired</source>
        <translation>Median von %1 Antworten; %2 von %3 Alarmen abgelaufen</translation>
    </message>
    <message>
        <source>no flight reached a visitor</source>
        <translation>kein Flug erreichte einen Besucher</translation>
    </message>
    <message>
        <source>1 flight, seen to on station</source>
        <translation>1 Flug, von gesehen bis vor Ort</translation>
    </message>
    <message>
        <source>median of %1 flights, seen to on station</source>
        <translation>Median von %1 Flügen, von gesehen bis vor Ort</translation>
    </message>
    <message>
        <source>Inside by at least</source>
        <translation>Mindestens innerhalb</translation>
    </message>
    <message>
        <source>the drone did not fly</source>
        <translation>die Drohne flog nicht</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>the drone left your boundary</source>
        <translation>die Drohne verließ Ihre Grenze</translation>
    </message>
    <message>
        <source>nearest the drone came to your boundary</source>
        <translation>näher kam die Drohne Ihrer Grenze nicht</translation>
    </message>
    <message>
        <source>To your answer</source>
        <translation>Bis zu Ihrer Antwort</translation>
    </message>
    <message>
        <source>To the visitor</source>
        <translation>Bis zum Besucher</translation>
    </message>
    <message>
        <source>Seen</source>
        <translation>Gesehen</translation>
    </message>
    <message>
        <source>answered</source>
        <translation>beantwortet</translation>
    </message>
    <message>
        <source>airborne</source>
        <translation>in der Luft</translation>
    </message>
    <message>
        <source>on station</source>
        <translation>vor Ort</translation>
    </message>
    <message>
        <source>coming home</source>
        <translation>kehrt heim</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>Seen to your answer</source>
        <translation>Bis zu Ihrer Antwort</translation>
    </message>
    <message>
        <source>Seen to the end</source>
        <translation>Bis zum Ende</translation>
    </message>
    <message>
        <source>Your answer to take-off</source>
        <translation>Antwort bis Start</translation>
    </message>
    <message>
        <source>After your answer</source>
        <translation>Nach Ihrer Antwort</translation>
    </message>
    <message>
        <source>On its way to the visitor</source>
        <translation>Unterwegs zum Besucher</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>part of a response</comment>
        <translation>Folgt</translation>
    </message>
    <message>
        <source>Following and landing</source>
        <translation>Verfolgung und Landung</translation>
    </message>
    <message>
        <source>Coming home and landing</source>
        <translation>Heimflug und Landung</translation>
    </message>
    <message>
        <source>landed</source>
        <translation>gelandet</translation>
    </message>
    <message>
        <source>Report of the visits</source>
        <translation>Bericht über die Besuche</translation>
    </message>
    <message>
        <source>Site: %1 · %2</source>
        <comment>name of the site, who made the report</comment>
        <translation>Grundstück: %1 · %2</translation>
    </message>
    <message>
        <source>Patterns appear after three visits.</source>
        <translation>Muster erscheinen ab drei Besuchen.</translation>
    </message>
    <message>
        <source>When they came</source>
        <translation>Wann sie kamen</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Nach Kamera</translation>
    </message>
    <message>
        <source>How they ended</source>
        <translation>Wie sie endeten</translation>
    </message>
    <message>
        <source>%1 of %2 flown</source>
        <translation>%1 von %2 geflogen</translation>
    </message>
    <message>
        <source>%1 % done</source>
        <translation>%1&#xa0;% fertig</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>time, offset from UTC</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Airborne at %1.</source>
        <translation>In der Luft um %1.</translation>
    </message>
    <message>
        <source>Airborne at %1, at a height of %2 m.</source>
        <translation>In der Luft um %1, in %2&#xa0;m Höhe.</translation>
    </message>
    <message>
        <source>On station at %1.</source>
        <translation>Vor Ort um %1.</translation>
    </message>
    <message>
        <source>On station at %1, following %2 m behind.</source>
        <translation>Vor Ort um %1, folgt mit %2&#xa0;m Abstand.</translation>
    </message>
    <message>
        <source>On its way home at %1.</source>
        <translation>Auf dem Heimweg um %1.</translation>
    </message>
    <message>
        <source>The flight ended at %1.</source>
        <translation>Der Flug endete um %1.</translation>
    </message>
    <message>
        <source>On its pad at %1.</source>
        <translation>Auf ihrem Landeplatz um %1.</translation>
    </message>
    <message>
        <source>Landed away from its pad at %1.</source>
        <translation>Abseits ihres Landeplatzes gelandet um %1.</translation>
    </message>
    <message>
        <source>The owner approved the launch at %1, %2 after the camera reported the visitor.</source>
        <translation>Der Eigentümer gab den Start um %1 frei, %2 nachdem die Kamera den Besucher gemeldet hatte.</translation>
    </message>
    <message>
        <source>The owner ignored the alert at %1, %2 after the camera reported the visitor.</source>
        <translation>Der Eigentümer ignorierte den Alarm um %1, %2 nachdem die Kamera den Besucher gemeldet hatte.</translation>
    </message>
    <message>
        <source>The owner approved the launch %1 at %2, %3 after the camera reported the visitor.</source>
        <translation>Der Eigentümer gab den Start %1 um %2 frei, %3 nachdem die Kamera den Besucher gemeldet hatte.</translation>
    </message>
    <message>
        <source>The owner ignored the alert %1 at %2, %3 after the camera reported the visitor.</source>
        <translation>Der Eigentümer ignorierte den Alarm %1 um %2, %3 nachdem die Kamera den Besucher gemeldet hatte.</translation>
    </message>
    <message>
        <source>Nobody answered the alert until it expired at %1, %2 after the camera reported the visitor.</source>
        <translation>Niemand beantwortete den Alarm, bis er um %1 ablief, %2 nachdem die Kamera den Besucher gemeldet hatte.</translation>
    </message>
    <message>
        <source>The system was disarmed: the visit was only logged, and nobody was asked.</source>
        <translation>Das System war unscharf: Der Besuch wurde nur aufgezeichnet, und niemand wurde gefragt.</translation>
    </message>
    <message>
        <source>The wind was over the owner&apos;s limit, and nobody was asked.</source>
        <translation>Der Wind lag über der Grenze des Eigentümers, und niemand wurde gefragt.</translation>
    </message>
    <message>
        <source>The record does not say how the alert was answered.</source>
        <translation>Die Aufzeichnung sagt nicht, wie der Alarm beantwortet wurde.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <comment>date, time, time</comment>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>%1, %2 to %3, %4</source>
        <comment>date, time, date, time</comment>
        <translation>%1, %2 bis %3, %4</translation>
    </message>
    <message>
        <source>The drone launches only after the owner&apos;s approval.</source>
        <translation>Die Drohne startet nur nach Freigabe durch den Eigentümer.</translation>
    </message>
    <message>
        <source>The drone stayed on its pad.</source>
        <translation>Die Drohne blieb auf ihrem Landeplatz.</translation>
    </message>
    <message>
        <source>Solid: the visitor&apos;s path.</source>
        <translation>Durchgezogen: Weg des Besuchers.</translation>
    </message>
    <message>
        <source>Dashed: the drone&apos;s path.</source>
        <translation>Gestrichelt: Weg der Drohne.</translation>
    </message>
    <message>
        <source>Band: the %1 m buffer.</source>
        <translation>Band: Puffer von %1&#xa0;m.</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <comment>form of a date and time</comment>
        <translation>d. MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>Made by Velmora %1 on %2 (%3)</source>
        <translation>Erstellt von Velmora %1 am %2 (%3)</translation>
    </message>
    <message>
        <source>Visit report</source>
        <translation>Besuchsbericht</translation>
    </message>
    <message>
        <source>Record %1 · Site: %2 · %3</source>
        <comment>record id, name of the site, who made the report</comment>
        <translation>Aufzeichnung %1 · Grundstück: %2 · %3</translation>
    </message>
    <message>
        <source>The picture is shown whole, as it was received.</source>
        <translation>Das Bild ist vollständig, wie es empfangen wurde.</translation>
    </message>
    <message>
        <source>A rehearsed visit of the demo: nobody came, and nothing flew.</source>
        <translation>Ein simulierter Besuch der Demo: Niemand kam, und nichts flog.</translation>
    </message>
    <message>
        <source>There is no picture of this alert.</source>
        <translation>Zu diesem Alarm gibt es kein Bild.</translation>
    </message>
    <message>
        <source>Alert picture, %1, %2</source>
        <comment>camera, time</comment>
        <translation>Alarmbild, %1, %2</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Furthest out</source>
        <translation>Max. Entfernung</translation>
    </message>
    <message>
        <source>Battery used</source>
        <translation>Akkuverbrauch</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>% unknown</source>
        <translation>% unbekannt</translation>
    </message>
    <message>
        <source>How it was answered</source>
        <translation>Wie er beantwortet wurde</translation>
    </message>
    <message>
        <source>The flight</source>
        <translation>Der Flug</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Grenze</translation>
    </message>
    <message>
        <source>Metres inside the boundary</source>
        <translation>Meter innerhalb der Grenze</translation>
    </message>
    <message>
        <source>%1 from seen to landed</source>
        <translation>%1 von gesehen bis gelandet</translation>
    </message>
    <message>
        <source>%1 from seen to the end</source>
        <translation>%1 von gesehen bis zum Ende</translation>
    </message>
    <message>
        <source>Response</source>
        <translation>Reaktion</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>After</source>
        <comment>column of times since the alert</comment>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>What happened, continued</source>
        <translation>Ablauf, Fortsetzung</translation>
    </message>
    <message>
        <source>Paths, distances and times are those the drone and the cameras reported.</source>
        <translation>Wege, Abstände und Zeiten sind die von Drohne und Kameras gemeldeten.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>date, date</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Only these visits: %1</source>
        <comment>names of filters</comment>
        <translation>Nur diese Besuche: %1</translation>
    </message>
</context>
</TS>

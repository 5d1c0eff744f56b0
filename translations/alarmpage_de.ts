<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>EntryList</name>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No trigger yet</source>
        <translation>Noch kein Auslöser</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No action yet</source>
        <translation>Noch keine Aktion</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="74"/>
        <source>Send test request</source>
        <translation>Testanfrage senden</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="78"/>
        <location filename="../qml/EntryList.qml" line="79"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Trigger kind</source>
        <translation>Art des Auslösers</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Action kind</source>
        <translation>Art der Aktion</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="104"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="112"/>
        <source>Number of the input, output or window</source>
        <translation>Nummer des Eingangs, Ausgangs oder Fensters</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="113"/>
        <source>Recipient, number, address or path (empty: as in the site&apos;s rules)</source>
        <translation>Empfänger, Nummer, Adresse oder Pfad (leer: wie in den Regeln des Standorts)</translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="117"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/Main.qml" line="18"/>
        <source>Alarm management</source>
        <translation>Alarmverwaltung</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="99"/>
        <source>(copy)</source>
        <translation>(Kopie)</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="156"/>
        <source>No audio device: alarm sounds are not played</source>
        <translation>Kein Audiogerät: Alarmtöne werden nicht abgespielt</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="159"/>
        <source>The sound %1 is not in the local sound store</source>
        <translation>Der Ton %1 ist nicht im lokalen Tonspeicher</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>Alarm list loaded</source>
        <translation>Alarmliste geladen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>The alarm list could not be loaded</source>
        <translation>Die Alarmliste konnte nicht geladen werden</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Alarm %1 added</source>
        <translation>Alarm %1 hinzugefügt</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Adding the alarm failed</source>
        <translation>Hinzufügen des Alarms fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Alarm saved</source>
        <translation>Alarm gespeichert</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Saving failed: the alarm was changed elsewhere or is invalid</source>
        <translation>Speichern fehlgeschlagen: Der Alarm wurde anderswo geändert oder ist ungültig</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="212"/>
        <source>%n of %1 alarm(s) deleted</source>
        <translation>
            <numerusform>%n von %1 Alarm gelöscht</numerusform>
            <numerusform>%n von %1 Alarmen gelöscht</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Alarms switched</source>
        <translation>Alarme umgeschaltet</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Switching failed</source>
        <translation>Umschalten fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="221"/>
        <source>Pausing or resuming all alarms failed</source>
        <translation>Pausieren oder Fortsetzen aller Alarme fehlgeschlagen</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="223"/>
        <source>All alarms paused for %n minute(s)</source>
        <translation>
            <numerusform>Alle Alarme für %n Minute pausiert</numerusform>
            <numerusform>Alle Alarme für %n Minuten pausiert</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="225"/>
        <source>All alarms resumed</source>
        <translation>Alle Alarme fortgesetzt</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="232"/>
        <source>The reserve time could not be read</source>
        <translation>Die Aufbewahrungszeit konnte nicht gelesen werden</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Reserve time saved</source>
        <translation>Aufbewahrungszeit gespeichert</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Saving the reserve time failed</source>
        <translation>Speichern der Aufbewahrungszeit fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request answered</source>
        <translation>Testanfrage beantwortet</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request failed: %1</source>
        <translation>Testanfrage fehlgeschlagen: %1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="241"/>
        <source>An alarm&apos;s HTTP request answered: %1</source>
        <translation>HTTP-Anfrage eines Alarms beantwortet: %1</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="243"/>
        <source>Alarm %1 was deleted</source>
        <translation>Alarm %1 wurde gelöscht</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <source>Schedule of alarm %1 saved</source>
        <translation>Zeitplan von Alarm %1 gespeichert</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Saving the schedule failed</source>
        <translation>Speichern des Zeitplans fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Schedule %1 saved</source>
        <translation>Zeitplan %1 gespeichert</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>Virtual trigger sent</source>
        <translation>Virtueller Auslöser gesendet</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>No active alarm holds this trigger</source>
        <translation>Kein aktiver Alarm enthält diesen Auslöser</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Go to E-Map</source>
        <translation>Zur E-Map wechseln</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Popup window</source>
        <translation>Popup-Fenster</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="741"/>
        <source>Sound the alarm</source>
        <translation>Alarmton abspielen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="311"/>
        <source>Alarm rules</source>
        <translation>Alarmregeln</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="319"/>
        <source>Search name, trigger, action, schedule</source>
        <translation>Name, Auslöser, Aktion, Zeitplan suchen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>All alarms</source>
        <translation>Alle Alarme</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Enabled only</source>
        <translation>Nur aktivierte</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Disabled only</source>
        <translation>Nur deaktivierte</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="334"/>
        <source>%1 of %n rule(s) shown</source>
        <translation>
            <numerusform>%1 von %n Regel angezeigt</numerusform>
            <numerusform>%1 von %n Regeln angezeigt</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="338"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="340"/>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="345"/>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="350"/>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="355"/>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="360"/>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="364"/>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="370"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="429"/>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="430"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="431"/>
        <source>Trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="432"/>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="433"/>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="529"/>
        <source>%n unknown device(s): %1</source>
        <translation>
            <numerusform>%n unbekanntes Gerät: %1</numerusform>
            <numerusform>%n unbekannte Geräte: %1</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="565"/>
        <source>No alarm matches</source>
        <translation>Kein Alarm passt</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="580"/>
        <source>Loading alarm list...</source>
        <translation>Alarmliste wird geladen …</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="592"/>
        <source>View cell</source>
        <translation>Ansichtszelle</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="625"/>
        <source>Virtual triggers of the enabled alarms on this camera</source>
        <translation>Virtuelle Auslöser der aktivierten Alarme auf dieser Kamera</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="631"/>
        <source>Server settings</source>
        <translation>Servereinstellungen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="635"/>
        <location filename="../qml/Main.qml" line="647"/>
        <source>Keep alarm records</source>
        <translation>Alarmprotokolle aufbewahren</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="645"/>
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="650"/>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="654"/>
        <location filename="../qml/Main.qml" line="665"/>
        <source>Pause all alarms</source>
        <translation>Alle Alarme pausieren</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="663"/>
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="668"/>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="676"/>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="688"/>
        <source>Alarm sound</source>
        <translation>Alarmton</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="698"/>
        <source>Playing %1</source>
        <translation>Spielt %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="699"/>
        <source>%n sound(s) on the server</source>
        <translation>
            <numerusform>%n Ton auf dem Server</numerusform>
            <numerusform>%n Töne auf dem Server</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="701"/>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="703"/>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="711"/>
        <source>Triggered alarms and notifications</source>
        <translation>Ausgelöste Alarme und Benachrichtigungen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="754"/>
        <source>Close alarm tabs</source>
        <translation>Alarm-Tabs schließen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="759"/>
        <source>Close map tabs</source>
        <translation>Karten-Tabs schließen</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="764"/>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="779"/>
        <source>Delete alarms</source>
        <translation>Alarme löschen</translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="784"/>
        <source>Delete %n selected alarm(s)?</source>
        <translation>
            <numerusform>%n ausgewählten Alarm löschen?</numerusform>
            <numerusform>%n ausgewählte Alarme löschen?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="38"/>
        <source>Motion detection</source>
        <translation>Bewegungserkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="39"/>
        <source>Camera DI</source>
        <translation>Kamera-DI</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="40"/>
        <source>Camera DO</source>
        <translation>Kamera-DO</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="41"/>
        <source>Video loss</source>
        <translation>Videoverlust</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="42"/>
        <source>Video restore</source>
        <translation>Video wiederhergestellt</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="43"/>
        <source>PIR (Passive infrared)</source>
        <translation>PIR (Passiv-Infrarot)</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="44"/>
        <source>Tampering detection</source>
        <translation>Sabotageerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="45"/>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="46"/>
        <source>IR (Infrared)</source>
        <translation>IR (Infrarot)</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="47"/>
        <source>SD card life expectancy detection</source>
        <translation>Lebensdauerüberwachung der SD-Karte</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="48"/>
        <source>Audio detection</source>
        <translation>Audioerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="49"/>
        <source>Shock detection</source>
        <translation>Erschütterungserkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="50"/>
        <source>PPTZ</source>
        <translation>PPTZ</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="51"/>
        <source>List management</source>
        <translation>Listenverwaltung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="52"/>
        <source>Line crossing detection</source>
        <translation>Linienüberschreitungserkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="53"/>
        <source>Intrusion detection</source>
        <translation>Eindringerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="54"/>
        <source>Loitering detection</source>
        <translation>Herumlungererkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="55"/>
        <source>Unattended object detection</source>
        <translation>Erkennung unbeaufsichtigter Objekte</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="56"/>
        <source>Face detection</source>
        <translation>Gesichtserkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="57"/>
        <source>Zone detection</source>
        <translation>Zonenerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="58"/>
        <source>Missing object detection</source>
        <translation>Erkennung fehlender Objekte</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="59"/>
        <source>Crowd detection</source>
        <translation>Menschenmengenerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="60"/>
        <source>Smart tracking</source>
        <translation>Intelligente Verfolgung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="61"/>
        <source>Parking violation detection</source>
        <translation>Falschparkererkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="62"/>
        <source>People running detection</source>
        <translation>Erkennung laufender Personen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="63"/>
        <source>Restricted zone detection</source>
        <translation>Sperrzonenerkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="64"/>
        <source>Intrusion</source>
        <translation>Eindringen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="65"/>
        <source>Fire spot detection</source>
        <translation>Brandherderkennung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="66"/>
        <source>Temperature threshold alarm</source>
        <translation>Temperaturschwellenwert-Alarm</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="67"/>
        <source>Camera disconnected</source>
        <translation>Kamera getrennt</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="68"/>
        <source>Recording error</source>
        <translation>Aufnahmefehler</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="69"/>
        <source>Stop recording</source>
        <translation>Aufnahme beendet</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="70"/>
        <location filename="../qml/RuleEditor.qml" line="83"/>
        <source>Network disconnected</source>
        <translation>Netzwerk getrennt</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="71"/>
        <source>Storage failure</source>
        <translation>Speicherausfall</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="72"/>
        <source>Storage full</source>
        <translation>Speicher voll</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="73"/>
        <source>Fan error</source>
        <translation>Lüfterfehler</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="74"/>
        <source>Failover server running</source>
        <translation>Failover-Server in Betrieb</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="75"/>
        <source>GPS disconnected</source>
        <translation>GPS getrennt</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="76"/>
        <source>Speeding</source>
        <translation>Geschwindigkeitsüberschreitung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="77"/>
        <source>Abnormal G-sensor motion (Mobile NVR)</source>
        <translation>Ungewöhnliche Bewegung am G-Sensor (mobiler NVR)</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="78"/>
        <location filename="../qml/RuleEditor.qml" line="86"/>
        <source>DI/DO Device DI</source>
        <translation>DI/DO-Gerät DI</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="79"/>
        <source>Brute force attack</source>
        <translation>Brute-Force-Angriff</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="80"/>
        <source>Cyber attack</source>
        <translation>Cyberangriff</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="81"/>
        <source>Quarantine event</source>
        <translation>Quarantäneereignis</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="82"/>
        <source>Trial expired</source>
        <translation>Testzeitraum abgelaufen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="84"/>
        <source>Low virtual memory</source>
        <translation>Virtueller Speicher knapp</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="85"/>
        <source>Number of remaining people</source>
        <translation>Anzahl verbleibender Personen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="87"/>
        <source>TCP message</source>
        <translation>TCP-Nachricht</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="88"/>
        <location filename="../qml/RuleEditor.qml" line="89"/>
        <source>Data magnet</source>
        <translation>Datenmagnet</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="90"/>
        <source>Virtual trigger</source>
        <translation>Virtueller Auslöser</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="91"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="92"/>
        <source>GSM short message</source>
        <translation>GSM-Kurznachricht</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="93"/>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="94"/>
        <source>Send HTTP requests</source>
        <translation>HTTP-Anfragen senden</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="95"/>
        <source>Start to record videos</source>
        <translation>Videoaufnahme starten</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="96"/>
        <source>Go to camera presets</source>
        <translation>Kamera-Presets anfahren</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="97"/>
        <source>Set DO status</source>
        <translation>DO-Status setzen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="98"/>
        <source>Launch program</source>
        <translation>Programm starten</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="99"/>
        <source>Send live streaming</source>
        <translation>Live-Stream senden</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="100"/>
        <source>Go to E-Map</source>
        <translation>Zur E-Map wechseln</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="101"/>
        <source>Sound the alarm</source>
        <translation>Alarmton abspielen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="102"/>
        <source>Add bookmark</source>
        <translation>Lesezeichen hinzufügen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="103"/>
        <source>Play audio file with network audio device</source>
        <translation>Audiodatei über Netzwerk-Audiogerät abspielen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="104"/>
        <source>Send notification to mobile device</source>
        <translation>Benachrichtigung an Mobilgerät senden</translation>
    </message>
</context>
<context>
    <name>RuleEditor</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="25"/>
        <source>The rule needs a name.</source>
        <translation>Die Regel braucht einen Namen.</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="27"/>
        <source>The rule needs at least one trigger.</source>
        <translation>Die Regel braucht mindestens einen Auslöser.</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="31"/>
        <source>The action &quot;%1&quot; has no target.</source>
        <translation>Die Aktion „%1“ hat kein Ziel.</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="135"/>
        <source>Add alarm</source>
        <translation>Alarm hinzufügen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="180"/>
        <source>Edit alarm %1</source>
        <translation>Alarm %1 bearbeiten</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="219"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="224"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="247"/>
        <location filename="../qml/RuleEditor.qml" line="248"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="249"/>
        <location filename="../qml/RuleEditor.qml" line="254"/>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="256"/>
        <location filename="../qml/RuleEditor.qml" line="261"/>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="260"/>
        <source>No schedule</source>
        <translation>Kein Zeitplan</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="264"/>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="269"/>
        <source>Triggers</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="279"/>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="293"/>
        <source>Test request sent to %1</source>
        <translation>Testanfrage an %1 gesendet</translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <location filename="../qml/SoundPlayer.qml" line="34"/>
        <source>The alarm sound cannot be played: %1</source>
        <translation>Der Alarmton kann nicht abgespielt werden: %1</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
    <context>
        <name>EntryList</name>
        <message>
            <source>No trigger yet</source>
            <translation>Noch kein Auslöser</translation>
        </message>
        <message>
            <source>No action yet</source>
            <translation>Noch keine Aktion</translation>
        </message>
        <message>
            <source>Send test request</source>
            <translation>Testanfrage senden</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Entfernen</translation>
        </message>
        <message>
            <source>Trigger kind</source>
            <translation>Art des Auslösers</translation>
        </message>
        <message>
            <source>Action kind</source>
            <translation>Art der Aktion</translation>
        </message>
        <message>
            <source>Device</source>
            <translation>Gerät</translation>
        </message>
        <message>
            <source>Add</source>
            <translation>Hinzufügen</translation>
        </message>
    </context>
    <context>
        <name>Main</name>
        <message>
            <source>Alarm management</source>
            <translation>Alarmverwaltung</translation>
        </message>
        <message>
            <source>(copy)</source>
            <translation>(Kopie)</translation>
        </message>
        <message>
            <source>No audio device: alarm sounds are not played</source>
            <translation>Kein Audiogerät: Alarmtöne werden nicht abgespielt</translation>
        </message>
        <message>
            <source>The sound %1 is not in the local sound store</source>
            <translation>Der Ton %1 ist nicht im lokalen Tonspeicher</translation>
        </message>
        <message>
            <source>Alarm list loaded</source>
            <translation>Alarmliste geladen</translation>
        </message>
        <message>
            <source>The alarm list could not be loaded</source>
            <translation>Die Alarmliste konnte nicht geladen werden</translation>
        </message>
        <message>
            <source>Alarm %1 added</source>
            <translation>Alarm %1 hinzugefügt</translation>
        </message>
        <message>
            <source>Adding the alarm failed</source>
            <translation>Hinzufügen des Alarms fehlgeschlagen</translation>
        </message>
        <message>
            <source>Alarm saved</source>
            <translation>Alarm gespeichert</translation>
        </message>
        <message>
            <source>Saving failed: the alarm was changed elsewhere or is invalid</source>
            <translation>Speichern fehlgeschlagen: Der Alarm wurde anderswo geändert oder ist ungültig</translation>
        </message>
        <message numerus="yes">
            <source>%n of %1 alarm(s) deleted</source>
            <translation>
                <numerusform>%n von %1 Alarm gelöscht</numerusform>
                <numerusform>%n von %1 Alarmen gelöscht</numerusform>
            </translation>
        </message>
        <message>
            <source>Alarms switched</source>
            <translation>Alarme umgeschaltet</translation>
        </message>
        <message>
            <source>Switching failed</source>
            <translation>Umschalten fehlgeschlagen</translation>
        </message>
        <message>
            <source>Pausing or resuming all alarms failed</source>
            <translation>Pausieren oder Fortsetzen aller Alarme fehlgeschlagen</translation>
        </message>
        <message numerus="yes">
            <source>All alarms paused for %n minute(s)</source>
            <translation>
                <numerusform>Alle Alarme für %n Minute pausiert</numerusform>
                <numerusform>Alle Alarme für %n Minuten pausiert</numerusform>
            </translation>
        </message>
        <message>
            <source>All alarms resumed</source>
            <translation>Alle Alarme fortgesetzt</translation>
        </message>
        <message>
            <source>The reserve time could not be read</source>
            <translation>Die Aufbewahrungszeit konnte nicht gelesen werden</translation>
        </message>
        <message>
            <source>Reserve time saved</source>
            <translation>Aufbewahrungszeit gespeichert</translation>
        </message>
        <message>
            <source>Saving the reserve time failed</source>
            <translation>Speichern der Aufbewahrungszeit fehlgeschlagen</translation>
        </message>
        <message>
            <source>Test request answered</source>
            <translation>Testanfrage beantwortet</translation>
        </message>
        <message>
            <source>Test request failed: %1</source>
            <translation>Testanfrage fehlgeschlagen: %1</translation>
        </message>
        <message>
            <source>An alarm's HTTP request answered: %1</source>
            <translation>HTTP-Anfrage eines Alarms beantwortet: %1</translation>
        </message>
        <message>
            <source>Alarm %1 was deleted</source>
            <translation>Alarm %1 wurde gelöscht</translation>
        </message>
        <message>
            <source>Schedule of alarm %1 saved</source>
            <translation>Zeitplan von Alarm %1 gespeichert</translation>
        </message>
        <message>
            <source>Saving the schedule failed</source>
            <translation>Speichern des Zeitplans fehlgeschlagen</translation>
        </message>
        <message>
            <source>Schedule %1 saved</source>
            <translation>Zeitplan %1 gespeichert</translation>
        </message>
        <message>
            <source>Virtual trigger sent</source>
            <translation>Virtueller Auslöser gesendet</translation>
        </message>
        <message>
            <source>No active alarm holds this trigger</source>
            <translation>Kein aktiver Alarm enthält diesen Auslöser</translation>
        </message>
        <message>
            <source>Go to E-Map</source>
            <translation>Zur E-Map wechseln</translation>
        </message>
        <message>
            <source>Popup window</source>
            <translation>Popup-Fenster</translation>
        </message>
        <message>
            <source>Sound the alarm</source>
            <translation>Alarmton abspielen</translation>
        </message>
        <message>
            <source>Alarm rules</source>
            <translation>Alarmregeln</translation>
        </message>
        <message>
            <source>Search name, trigger, action, schedule</source>
            <translation>Name, Auslöser, Aktion, Zeitplan suchen</translation>
        </message>
        <message>
            <source>All alarms</source>
            <translation>Alle Alarme</translation>
        </message>
        <message>
            <source>Enabled only</source>
            <translation>Nur aktivierte</translation>
        </message>
        <message>
            <source>Disabled only</source>
            <translation>Nur deaktivierte</translation>
        </message>
        <message numerus="yes">
            <source>%1 of %n rule(s) shown</source>
            <translation>
                <numerusform>%1 von %n Regel angezeigt</numerusform>
                <numerusform>%1 von %n Regeln angezeigt</numerusform>
            </translation>
        </message>
        <message>
            <source>Add</source>
            <translation>Hinzufügen</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Bearbeiten</translation>
        </message>
        <message>
            <source>Duplicate</source>
            <translation>Duplizieren</translation>
        </message>
        <message>
            <source>Enable</source>
            <translation>Aktivieren</translation>
        </message>
        <message>
            <source>Disable</source>
            <translation>Deaktivieren</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Reload</source>
            <translation>Neu laden</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Sprache</translation>
        </message>
        <message>
            <source>On</source>
            <translation>Ein</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Trigger</source>
            <translation>Auslöser</translation>
        </message>
        <message>
            <source>Actions</source>
            <translation>Aktionen</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zeitplan</translation>
        </message>
        <message numerus="yes">
            <source>%n unknown device(s): %1</source>
            <translation>
                <numerusform>%n unbekanntes Gerät: %1</numerusform>
                <numerusform>%n unbekannte Geräte: %1</numerusform>
            </translation>
        </message>
        <message>
            <source>No alarm matches</source>
            <translation>Kein Alarm passt</translation>
        </message>
        <message>
            <source>Loading alarm list...</source>
            <translation>Alarmliste wird geladen …</translation>
        </message>
        <message>
            <source>View cell</source>
            <translation>Ansichtszelle</translation>
        </message>
        <message>
            <source>Virtual triggers of the enabled alarms on this camera</source>
            <translation>Virtuelle Auslöser der aktivierten Alarme auf dieser Kamera</translation>
        </message>
        <message>
            <source>Server settings</source>
            <translation>Servereinstellungen</translation>
        </message>
        <message>
            <source>Keep alarm records</source>
            <translation>Alarmprotokolle aufbewahren</translation>
        </message>
        <message numerus="yes">
            <source>%n day(s)</source>
            <translation>
                <numerusform>%n Tag</numerusform>
                <numerusform>%n Tage</numerusform>
            </translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Übernehmen</translation>
        </message>
        <message>
            <source>Pause all alarms</source>
            <translation>Alle Alarme pausieren</translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n Minute</numerusform>
                <numerusform>%n Minuten</numerusform>
            </translation>
        </message>
        <message>
            <source>Pause</source>
            <translation>Pausieren</translation>
        </message>
        <message>
            <source>Resume</source>
            <translation>Fortsetzen</translation>
        </message>
        <message>
            <source>Alarm sound</source>
            <translation>Alarmton</translation>
        </message>
        <message>
            <source>Playing %1</source>
            <translation>Spielt %1</translation>
        </message>
        <message numerus="yes">
            <source>%n sound(s) on the server</source>
            <translation>
                <numerusform>%n Ton auf dem Server</numerusform>
                <numerusform>%n Töne auf dem Server</numerusform>
            </translation>
        </message>
        <message>
            <source>Mute</source>
            <translation>Stumm</translation>
        </message>
        <message>
            <source>Stop</source>
            <translation>Anhalten</translation>
        </message>
        <message>
            <source>Triggered alarms and notifications</source>
            <translation>Ausgelöste Alarme und Benachrichtigungen</translation>
        </message>
        <message>
            <source>Close alarm tabs</source>
            <translation>Alarm-Tabs schließen</translation>
        </message>
        <message>
            <source>Close map tabs</source>
            <translation>Karten-Tabs schließen</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Leeren</translation>
        </message>
        <message>
            <source>Delete alarms</source>
            <translation>Alarme löschen</translation>
        </message>
        <message numerus="yes">
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
            <source>Motion detection</source>
            <translation>Bewegungserkennung</translation>
        </message>
        <message>
            <source>Camera DI</source>
            <translation>Kamera-DI</translation>
        </message>
        <message>
            <source>Camera DO</source>
            <translation>Kamera-DO</translation>
        </message>
        <message>
            <source>Video loss</source>
            <translation>Videoverlust</translation>
        </message>
        <message>
            <source>Video restore</source>
            <translation>Video wiederhergestellt</translation>
        </message>
        <message>
            <source>PIR (Passive infrared)</source>
            <translation>PIR (Passiv-Infrarot)</translation>
        </message>
        <message>
            <source>Tampering detection</source>
            <translation>Sabotageerkennung</translation>
        </message>
        <message>
            <source>Temperature</source>
            <translation>Temperatur</translation>
        </message>
        <message>
            <source>IR (Infrared)</source>
            <translation>IR (Infrarot)</translation>
        </message>
        <message>
            <source>SD card life expectancy detection</source>
            <translation>Lebensdauerüberwachung der SD-Karte</translation>
        </message>
        <message>
            <source>Audio detection</source>
            <translation>Audioerkennung</translation>
        </message>
        <message>
            <source>Shock detection</source>
            <translation>Erschütterungserkennung</translation>
        </message>
        <message>
            <source>PPTZ</source>
            <translation>PPTZ</translation>
        </message>
        <message>
            <source>List management</source>
            <translation>Listenverwaltung</translation>
        </message>
        <message>
            <source>Line crossing detection</source>
            <translation>Linienüberschreitungserkennung</translation>
        </message>
        <message>
            <source>Intrusion detection</source>
            <translation>Eindringerkennung</translation>
        </message>
        <message>
            <source>Loitering detection</source>
            <translation>Herumlungererkennung</translation>
        </message>
        <message>
            <source>Unattended object detection</source>
            <translation>Erkennung unbeaufsichtigter Objekte</translation>
        </message>
        <message>
            <source>Face detection</source>
            <translation>Gesichtserkennung</translation>
        </message>
        <message>
            <source>Zone detection</source>
            <translation>Zonenerkennung</translation>
        </message>
        <message>
            <source>Missing object detection</source>
            <translation>Erkennung fehlender Objekte</translation>
        </message>
        <message>
            <source>Crowd detection</source>
            <translation>Menschenmengenerkennung</translation>
        </message>
        <message>
            <source>Smart tracking</source>
            <translation>Intelligente Verfolgung</translation>
        </message>
        <message>
            <source>Parking violation detection</source>
            <translation>Falschparkererkennung</translation>
        </message>
        <message>
            <source>People running detection</source>
            <translation>Erkennung laufender Personen</translation>
        </message>
        <message>
            <source>Restricted zone detection</source>
            <translation>Sperrzonenerkennung</translation>
        </message>
        <message>
            <source>Intrusion</source>
            <translation>Eindringen</translation>
        </message>
        <message>
            <source>Fire spot detection</source>
            <translation>Brandherderkennung</translation>
        </message>
        <message>
            <source>Temperature threshold alarm</source>
            <translation>Temperaturschwellenwert-Alarm</translation>
        </message>
        <message>
            <source>Camera disconnected</source>
            <translation>Kamera getrennt</translation>
        </message>
        <message>
            <source>Recording error</source>
            <translation>Aufnahmefehler</translation>
        </message>
        <message>
            <source>Stop recording</source>
            <translation>Aufnahme beendet</translation>
        </message>
        <message>
            <source>Network disconnected</source>
            <translation>Netzwerk getrennt</translation>
        </message>
        <message>
            <source>Storage failure</source>
            <translation>Speicherausfall</translation>
        </message>
        <message>
            <source>Storage full</source>
            <translation>Speicher voll</translation>
        </message>
        <message>
            <source>Fan error</source>
            <translation>Lüfterfehler</translation>
        </message>
        <message>
            <source>Failover server running</source>
            <translation>Failover-Server in Betrieb</translation>
        </message>
        <message>
            <source>GPS disconnected</source>
            <translation>GPS getrennt</translation>
        </message>
        <message>
            <source>Speeding</source>
            <translation>Geschwindigkeitsüberschreitung</translation>
        </message>
        <message>
            <source>Abnormal G-sensor motion (Mobile NVR)</source>
            <translation>Ungewöhnliche Bewegung am G-Sensor (mobiler NVR)</translation>
        </message>
        <message>
            <source>DI/DO Device DI</source>
            <translation>DI/DO-Gerät DI</translation>
        </message>
        <message>
            <source>Brute force attack</source>
            <translation>Brute-Force-Angriff</translation>
        </message>
        <message>
            <source>Cyber attack</source>
            <translation>Cyberangriff</translation>
        </message>
        <message>
            <source>Quarantine event</source>
            <translation>Quarantäneereignis</translation>
        </message>
        <message>
            <source>Trial expired</source>
            <translation>Testzeitraum abgelaufen</translation>
        </message>
        <message>
            <source>Low virtual memory</source>
            <translation>Virtueller Speicher knapp</translation>
        </message>
        <message>
            <source>Number of remaining people</source>
            <translation>Anzahl verbleibender Personen</translation>
        </message>
        <message>
            <source>TCP message</source>
            <translation>TCP-Nachricht</translation>
        </message>
        <message>
            <source>Data magnet</source>
            <translation>Datenmagnet</translation>
        </message>
        <message>
            <source>Virtual trigger</source>
            <translation>Virtueller Auslöser</translation>
        </message>
        <message>
            <source>Email</source>
            <translation>E-Mail</translation>
        </message>
        <message>
            <source>GSM short message</source>
            <translation>GSM-Kurznachricht</translation>
        </message>
        <message>
            <source>FTP</source>
            <translation>FTP</translation>
        </message>
        <message>
            <source>Send HTTP requests</source>
            <translation>HTTP-Anfragen senden</translation>
        </message>
        <message>
            <source>Start to record videos</source>
            <translation>Videoaufnahme starten</translation>
        </message>
        <message>
            <source>Go to camera presets</source>
            <translation>Kamera-Presets anfahren</translation>
        </message>
        <message>
            <source>Set DO status</source>
            <translation>DO-Status setzen</translation>
        </message>
        <message>
            <source>Launch program</source>
            <translation>Programm starten</translation>
        </message>
        <message>
            <source>Send live streaming</source>
            <translation>Live-Stream senden</translation>
        </message>
        <message>
            <source>Go to E-Map</source>
            <translation>Zur E-Map wechseln</translation>
        </message>
        <message>
            <source>Sound the alarm</source>
            <translation>Alarmton abspielen</translation>
        </message>
        <message>
            <source>Add bookmark</source>
            <translation>Lesezeichen hinzufügen</translation>
        </message>
        <message>
            <source>Play audio file with network audio device</source>
            <translation>Audiodatei über Netzwerk-Audiogerät abspielen</translation>
        </message>
        <message>
            <source>Send notification to mobile device</source>
            <translation>Benachrichtigung an Mobilgerät senden</translation>
        </message>
    </context>
    <context>
        <name>RuleEditor</name>
        <message>
            <source>The rule needs a name.</source>
            <translation>Die Regel braucht einen Namen.</translation>
        </message>
        <message>
            <source>The rule needs at least one trigger.</source>
            <translation>Die Regel braucht mindestens einen Auslöser.</translation>
        </message>
        <message>
            <source>The action "%1" has no target.</source>
            <translation>Die Aktion „%1“ hat kein Ziel.</translation>
        </message>
        <message>
            <source>Add alarm</source>
            <translation>Alarm hinzufügen</translation>
        </message>
        <message>
            <source>Edit alarm %1</source>
            <translation>Alarm %1 bearbeiten</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Name</translation>
        </message>
        <message>
            <source>Description</source>
            <translation>Beschreibung</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Zeitplan</translation>
        </message>
        <message>
            <source>No schedule</source>
            <translation>Kein Zeitplan</translation>
        </message>
        <message>
            <source>Enabled</source>
            <translation>Aktiviert</translation>
        </message>
        <message>
            <source>Triggers</source>
            <translation>Auslöser</translation>
        </message>
        <message>
            <source>Actions</source>
            <translation>Aktionen</translation>
        </message>
        <message>
            <source>Test request sent to %1</source>
            <translation>Testanfrage an %1 gesendet</translation>
        </message>
    </context>
    <context>
        <name>SoundPlayer</name>
        <message>
            <source>The alarm sound cannot be played: %1</source>
            <translation>Der Alarmton kann nicht abgespielt werden: %1</translation>
        </message>
    </context>
</TS>

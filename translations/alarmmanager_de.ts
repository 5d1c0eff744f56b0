<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+53"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+58"/>
        <source>Motion detection</source>
        <translation>Bewegungserkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera DI</source>
        <translation>Kamera-DI</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera DO</source>
        <translation>Kamera-DO</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+1"/>
        <location line="+45"/>
        <source>Video loss</source>
        <translation>Videoverlust</translation>
    </message>
    <message>
        <location line="-44"/>
        <location line="+1"/>
        <location line="+44"/>
        <source>Video restore</source>
        <translation>Video wiederhergestellt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PIR (Passive infrared)</source>
        <translation>PIR (Passiv-Infrarot)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tampering detection</source>
        <translation>Sabotageerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IR (Infrared)</source>
        <translation>IR (Infrarot)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SD card life expectancy detection</source>
        <translation>Lebensdauerüberwachung der SD-Karte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Audio detection</source>
        <translation>Audioerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shock detection</source>
        <translation>Erschütterungserkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Line crossing detection</source>
        <translation>Linienüberschreitungserkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intrusion detection</source>
        <translation>Eindringerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Loitering detection</source>
        <translation>Herumlungererkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unattended object detection</source>
        <translation>Erkennung unbeaufsichtigter Objekte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Face detection</source>
        <translation>Gesichtserkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Zone detection</source>
        <translation>Zonenerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Missing object detection</source>
        <translation>Erkennung fehlender Objekte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Crowd detection</source>
        <translation>Menschenmengenerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cyber attack</source>
        <translation>Cyberangriff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smart tracking</source>
        <translation>Intelligente Verfolgung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Parking violation detection</source>
        <translation>Falschparkererkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Virtual trigger</source>
        <translation>Virtueller Auslöser</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Intrusion</source>
        <translation>Eindringen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multi-loitering</source>
        <translation>Mehrfaches Herumlungern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fire spot detection</source>
        <translation>Brandherderkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smoker detection</source>
        <translation>Rauchererkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Smoke and flame detection</source>
        <translation>Rauch- und Flammenerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature threshold warning</source>
        <translation>Temperaturschwellenwert-Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature threshold alarm</source>
        <translation>Temperaturschwellenwert-Alarm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature difference warning</source>
        <translation>Temperaturdifferenz-Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature difference alarm</source>
        <translation>Temperaturdifferenz-Alarm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature rise warning</source>
        <translation>Temperaturanstieg-Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature rise alarm</source>
        <translation>Temperaturanstieg-Alarm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperature section alarm</source>
        <translation>Temperaturbereich-Alarm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PPTZ</source>
        <translation>PPTZ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Recording error</source>
        <translation>Aufnahmefehler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TCP message</source>
        <translation>TCP-Nachricht</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Data magnet</source>
        <translation>Datenmagnet</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+36"/>
        <source>Speeding</source>
        <translation>Geschwindigkeitsüberschreitung</translation>
    </message>
    <message>
        <location line="-35"/>
        <source>Number of remaining people</source>
        <translation>Anzahl verbleibender Personen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Brute force attack</source>
        <translation>Brute-Force-Angriff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quarantine event</source>
        <translation>Quarantäneereignis</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>People running detection</source>
        <translation>Erkennung laufender Personen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Restricted zone detection</source>
        <translation>Sperrzonenerkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>List management</source>
        <translation>Listenverwaltung</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>DI/DO Device DO</source>
        <translation>DI/DO-Gerät DO</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>DI/DO Device DI</source>
        <translation>DI/DO-Gerät DI</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Abnormal G-sensor motion (Mobile NVR)</source>
        <translation>Ungewöhnliche Bewegung am G-Sensor (mobiler NVR)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>GPS disconnected</source>
        <translation>GPS getrennt</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Camera connected</source>
        <translation>Kamera verbunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera disconnected</source>
        <translation>Kamera getrennt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start recording</source>
        <translation>Aufnahme gestartet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stop recording</source>
        <translation>Aufnahme beendet</translation>
    </message>
    <message>
        <location line="+118"/>
        <source>Network disconnected</source>
        <translation>Netzwerk getrennt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network connected</source>
        <translation>Netzwerk verbunden</translation>
    </message>
    <message>
        <location line="-117"/>
        <source>Fan resumes operation</source>
        <translation>Lüfter läuft wieder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fan error</source>
        <translation>Lüfterfehler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage ready</source>
        <translation>Speicher bereit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage failure</source>
        <translation>Speicherausfall</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage space available</source>
        <translation>Speicherplatz verfügbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Storage full</source>
        <translation>Speicher voll</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>License ready</source>
        <translation>Lizenz bereit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trial expired</source>
        <translation>Testzeitraum abgelaufen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Dongle lost</source>
        <translation>Dongle nicht gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Virtual memory available</source>
        <translation>Virtueller Speicher verfügbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Low virtual memory</source>
        <translation>Virtueller Speicher knapp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Failover server running</source>
        <translation>Failover-Server in Betrieb</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Failover server on standby</source>
        <translation>Failover-Server in Bereitschaft</translation>
    </message>
    <message>
        <location line="+121"/>
        <location line="+14"/>
        <source>DI-%1</source>
        <translation>DI-%1</translation>
    </message>
    <message>
        <location line="-12"/>
        <location line="+12"/>
        <location line="+81"/>
        <source>DO-%1</source>
        <translation>DO-%1</translation>
    </message>
    <message>
        <location line="-91"/>
        <source>Window %1</source>
        <translation>Fenster %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VCA-%1</source>
        <translation>VCA-%1</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GSM short message</source>
        <translation>GSM-Kurznachricht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send HTTP requests</source>
        <translation>HTTP-Anfragen senden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Start to record videos</source>
        <translation>Videoaufnahme starten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Go to camera presets</source>
        <translation>Kamera-Presets anfahren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set DO status</source>
        <translation>DO-Status setzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Launch program</source>
        <translation>Programm starten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send live streaming</source>
        <translation>Live-Stream senden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Go to E-Map</source>
        <translation>Zur E-Map wechseln</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sound the alarm</source>
        <translation>Alarmton abspielen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add bookmark</source>
        <translation>Lesezeichen hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Play audio file with network audio device</source>
        <translation>Audiodatei über Netzwerk-Audiogerät abspielen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Send notification to mobile device</source>
        <translation>Benachrichtigung an Mobilgerät senden</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>To: %1</source>
        <translation>An: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cc: %1</source>
        <translation>Cc: %1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Set %1 to Trigger</source>
        <translation>%1 auf Auslösen setzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set %1 to Normal</source>
        <translation>%1 auf Normal setzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set %1 to %2</source>
        <translation>%1 auf %2 setzen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>POST Method</source>
        <translation>POST-Methode</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>GET Method</source>
        <translation>GET-Methode</translation>
    </message>
    <message>
        <location filename="../src/AlarmActionParser.cpp" line="+88"/>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+3"/>
        <source>Event triggering camera</source>
        <translation>Ereignisauslösende Kamera</translation>
    </message>
    <message>
        <location line="+362"/>
        <location filename="../src/AlarmDisplayTexts.cpp" line="+2"/>
        <source>All roles</source>
        <translation>Alle Rollen</translation>
    </message>
    <message>
        <location filename="../src/PluginAlarmManager_Local.cpp" line="+59"/>
        <source>Customize</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Administrator</source>
        <translation>Administrator</translation>
    </message>
</context>
</TS>

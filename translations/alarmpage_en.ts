<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>EntryList</name>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No trigger yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="54"/>
        <source>No action yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="74"/>
        <source>Send test request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="78"/>
        <location filename="../qml/EntryList.qml" line="79"/>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Trigger kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="92"/>
        <source>Action kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="104"/>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="112"/>
        <source>Number of the input, output or window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="113"/>
        <source>Recipient, number, address or path (empty: as in the site&apos;s rules)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/EntryList.qml" line="117"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/Main.qml" line="18"/>
        <source>Alarm management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="99"/>
        <source>(copy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="156"/>
        <source>No audio device: alarm sounds are not played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="159"/>
        <source>The sound %1 is not in the local sound store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>Alarm list loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="196"/>
        <source>The alarm list could not be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Alarm %1 added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="201"/>
        <source>Adding the alarm failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Alarm saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="205"/>
        <source>Saving failed: the alarm was changed elsewhere or is invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="212"/>
        <source>%n of %1 alarm(s) deleted</source>
        <translation>
            <numerusform>%n of %1 alarm deleted</numerusform>
            <numerusform>%n of %1 alarms deleted</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Alarms switched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="216"/>
        <source>Switching failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="221"/>
        <source>Pausing or resuming all alarms failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="223"/>
        <source>All alarms paused for %n minute(s)</source>
        <translation>
            <numerusform>All alarms paused for %n minute</numerusform>
            <numerusform>All alarms paused for %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="225"/>
        <source>All alarms resumed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="232"/>
        <source>The reserve time could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Reserve time saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="236"/>
        <source>Saving the reserve time failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request answered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="239"/>
        <source>Test request failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="241"/>
        <source>An alarm&apos;s HTTP request answered: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="243"/>
        <source>Alarm %1 was deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <source>Schedule of alarm %1 saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="245"/>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Saving the schedule failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="248"/>
        <source>Schedule %1 saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>Virtual trigger sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="258"/>
        <source>No active alarm holds this trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Go to E-Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="740"/>
        <source>Popup window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="741"/>
        <source>Sound the alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="311"/>
        <source>Alarm rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="319"/>
        <source>Search name, trigger, action, schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>All alarms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Enabled only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="329"/>
        <source>Disabled only</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="334"/>
        <source>%1 of %n rule(s) shown</source>
        <translation>
            <numerusform>%1 of %n rule shown</numerusform>
            <numerusform>%1 of %n rules shown</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="338"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="340"/>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="345"/>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="350"/>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="355"/>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="360"/>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="364"/>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="370"/>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="429"/>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="430"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="431"/>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="432"/>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="433"/>
        <source>Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="529"/>
        <source>%n unknown device(s): %1</source>
        <translation>
            <numerusform>%n unknown device: %1</numerusform>
            <numerusform>%n unknown devices: %1</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="565"/>
        <source>No alarm matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="580"/>
        <source>Loading alarm list...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="592"/>
        <source>View cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="625"/>
        <source>Virtual triggers of the enabled alarms on this camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="631"/>
        <source>Server settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="635"/>
        <location filename="../qml/Main.qml" line="647"/>
        <source>Keep alarm records</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="645"/>
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="650"/>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="654"/>
        <location filename="../qml/Main.qml" line="665"/>
        <source>Pause all alarms</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="663"/>
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="668"/>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="676"/>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="688"/>
        <source>Alarm sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="698"/>
        <source>Playing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="699"/>
        <source>%n sound(s) on the server</source>
        <translation>
            <numerusform>%n sound on the server</numerusform>
            <numerusform>%n sounds on the server</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="701"/>
        <source>Mute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="703"/>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="711"/>
        <source>Triggered alarms and notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="754"/>
        <source>Close alarm tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="759"/>
        <source>Close map tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="764"/>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/Main.qml" line="779"/>
        <source>Delete alarms</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../qml/Main.qml" line="784"/>
        <source>Delete %n selected alarm(s)?</source>
        <translation>
            <numerusform>Delete %n selected alarm?</numerusform>
            <numerusform>Delete %n selected alarms?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="38"/>
        <source>Motion detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="39"/>
        <source>Camera DI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="40"/>
        <source>Camera DO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="41"/>
        <source>Video loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="42"/>
        <source>Video restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="43"/>
        <source>PIR (Passive infrared)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="44"/>
        <source>Tampering detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="45"/>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="46"/>
        <source>IR (Infrared)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="47"/>
        <source>SD card life expectancy detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="48"/>
        <source>Audio detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="49"/>
        <source>Shock detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="50"/>
        <source>PPTZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="51"/>
        <source>List management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="52"/>
        <source>Line crossing detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="53"/>
        <source>Intrusion detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="54"/>
        <source>Loitering detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="55"/>
        <source>Unattended object detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="56"/>
        <source>Face detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="57"/>
        <source>Zone detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="58"/>
        <source>Missing object detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="59"/>
        <source>Crowd detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="60"/>
        <source>Smart tracking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="61"/>
        <source>Parking violation detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="62"/>
        <source>People running detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="63"/>
        <source>Restricted zone detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="64"/>
        <source>Intrusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="65"/>
        <source>Fire spot detection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="66"/>
        <source>Temperature threshold alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="67"/>
        <source>Camera disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="68"/>
        <source>Recording error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="69"/>
        <source>Stop recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="70"/>
        <location filename="../qml/RuleEditor.qml" line="83"/>
        <source>Network disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="71"/>
        <source>Storage failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="72"/>
        <source>Storage full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="73"/>
        <source>Fan error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="74"/>
        <source>Failover server running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="75"/>
        <source>GPS disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="76"/>
        <source>Speeding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="77"/>
        <source>Abnormal G-sensor motion (Mobile NVR)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="78"/>
        <location filename="../qml/RuleEditor.qml" line="86"/>
        <source>DI/DO Device DI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="79"/>
        <source>Brute force attack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="80"/>
        <source>Cyber attack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="81"/>
        <source>Quarantine event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="82"/>
        <source>Trial expired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="84"/>
        <source>Low virtual memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="85"/>
        <source>Number of remaining people</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="87"/>
        <source>TCP message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="88"/>
        <location filename="../qml/RuleEditor.qml" line="89"/>
        <source>Data magnet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="90"/>
        <source>Virtual trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="91"/>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="92"/>
        <source>GSM short message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="93"/>
        <source>FTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="94"/>
        <source>Send HTTP requests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="95"/>
        <source>Start to record videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="96"/>
        <source>Go to camera presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="97"/>
        <source>Set DO status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="98"/>
        <source>Launch program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="99"/>
        <source>Send live streaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="100"/>
        <source>Go to E-Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="101"/>
        <source>Sound the alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="102"/>
        <source>Add bookmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="103"/>
        <source>Play audio file with network audio device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="104"/>
        <source>Send notification to mobile device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleEditor</name>
    <message>
        <location filename="../qml/RuleEditor.qml" line="25"/>
        <source>The rule needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="27"/>
        <source>The rule needs at least one trigger.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="31"/>
        <source>The action &quot;%1&quot; has no target.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="135"/>
        <source>Add alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="180"/>
        <source>Edit alarm %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="219"/>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="224"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="247"/>
        <location filename="../qml/RuleEditor.qml" line="248"/>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="249"/>
        <location filename="../qml/RuleEditor.qml" line="254"/>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="256"/>
        <location filename="../qml/RuleEditor.qml" line="261"/>
        <source>Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="260"/>
        <source>No schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="264"/>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="269"/>
        <source>Triggers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="279"/>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../qml/RuleEditor.qml" line="293"/>
        <source>Test request sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SoundPlayer</name>
    <message>
        <location filename="../qml/SoundPlayer.qml" line="34"/>
        <source>The alarm sound cannot be played: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>

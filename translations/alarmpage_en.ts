<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
    <context>
        <name>Main</name>
        <message numerus="yes">
            <source>%n of %1 alarm(s) deleted</source>
            <translation>
                <numerusform>%n of %1 alarm deleted</numerusform>
                <numerusform>%n of %1 alarms deleted</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>All alarms paused for %n minute(s)</source>
            <translation>
                <numerusform>All alarms paused for %n minute</numerusform>
                <numerusform>All alarms paused for %n minutes</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%1 of %n rule(s) shown</source>
            <translation>
                <numerusform>%1 of %n rule shown</numerusform>
                <numerusform>%1 of %n rules shown</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n unknown device(s): %1</source>
            <translation>
                <numerusform>%n unknown device: %1</numerusform>
                <numerusform>%n unknown devices: %1</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n day(s)</source>
            <translation>
                <numerusform>%n day</numerusform>
                <numerusform>%n days</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n minute(s)</source>
            <translation>
                <numerusform>%n minute</numerusform>
                <numerusform>%n minutes</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n sound(s) on the server</source>
            <translation>
                <numerusform>%n sound on the server</numerusform>
                <numerusform>%n sounds on the server</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Delete %n selected alarm(s)?</source>
            <translation>
                <numerusform>Delete %n selected alarm?</numerusform>
                <numerusform>Delete %n selected alarms?</numerusform>
            </translation>
        </message>
    </context>
</TS>

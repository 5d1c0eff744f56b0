// Adds or edits one alarm rule: name, description, enabled, schedule, and its triggers and actions entry by
// entry. Entries the user leaves alone are sent back exactly as the server sent them.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Dialog {
    id: editor
    modal: true
    width: 860
    height: 700
    focus: true
    closePolicy: Popup.CloseOnEscape

    signal submitted()

    property string alarmId: ""
    property string originalTriggerXml: ""
    property string originalActionXml: ""
    property var soundNames: []
    readonly property bool isNew: alarmId === ""
    readonly property var problems: {
        var found = []
        if (nameField.text.trim() === "")
            found.push(qsTr("The rule needs a name."))
        if (triggerList.entries.count === 0)
            found.push(qsTr("The rule needs at least one trigger."))
        for (var i = 0; i < actionList.entries.count; ++i) {
            var action = actionList.entries.get(i)
            if (!ruleEntries.hasTarget(action.xml))
                found.push(qsTr("The action \"%1\" has no target.").arg(action.label))
        }
        return found
    }

    // Texts for the kinds of entries; the plug-in's catalogue has them (context "QObject").
    readonly property var kindTexts: ({
        "Motion": QT_TRANSLATE_NOOP("QObject", "Motion detection"),
        "DI": QT_TRANSLATE_NOOP("QObject", "Camera DI"),
        "DO": QT_TRANSLATE_NOOP("QObject", "Camera DO"),
        "VideoLossRestore/0": QT_TRANSLATE_NOOP("QObject", "Video loss"),
        "VideoLossRestore/1": QT_TRANSLATE_NOOP("QObject", "Video restore"),
        "PIR": QT_TRANSLATE_NOOP("QObject", "PIR (Passive infrared)"),
        "Tampering": QT_TRANSLATE_NOOP("QObject", "Tampering detection"),
        "Temperature": QT_TRANSLATE_NOOP("QObject", "Temperature"),
        "IR": QT_TRANSLATE_NOOP("QObject", "IR (Infrared)"),
        "SmartSD": QT_TRANSLATE_NOOP("QObject", "SD card life expectancy detection"),
        "AudioDetection": QT_TRANSLATE_NOOP("QObject", "Audio detection"),
        "ShockDetection": QT_TRANSLATE_NOOP("QObject", "Shock detection"),
        "PPTZTrigger": QT_TRANSLATE_NOOP("QObject", "PPTZ"),
        "Guardian": QT_TRANSLATE_NOOP("QObject", "List management"),
        "VCA/LineDetection": QT_TRANSLATE_NOOP("QObject", "Line crossing detection"),
        "VCA/FieldDetection": QT_TRANSLATE_NOOP("QObject", "Intrusion detection"),
        "VCA/Loitering": QT_TRANSLATE_NOOP("QObject", "Loitering detection"),
        "VCA/AbandonObject": QT_TRANSLATE_NOOP("QObject", "Unattended object detection"),
        "VCA/FaceDetection": QT_TRANSLATE_NOOP("QObject", "Face detection"),
        "VCA/ZoneDetection": QT_TRANSLATE_NOOP("QObject", "Zone detection"),
        "VCA/MissingObject": QT_TRANSLATE_NOOP("QObject", "Missing object detection"),
        "VCA/CrowdDetection": QT_TRANSLATE_NOOP("QObject", "Crowd detection"),
        "VCA/SmartTracking": QT_TRANSLATE_NOOP("QObject", "Smart tracking"),
        "VCA/ParkingViolationDetection": QT_TRANSLATE_NOOP("QObject", "Parking violation detection"),
        "VCA/RunningDetection": QT_TRANSLATE_NOOP("QObject", "People running detection"),
        "VCA/RestrictedZoneDetection": QT_TRANSLATE_NOOP("QObject", "Restricted zone detection"),
        "Thermal/ThermalIntrusion": QT_TRANSLATE_NOOP("QObject", "Intrusion"),
        "Thermal/FireSpotDetection": QT_TRANSLATE_NOOP("QObject", "Fire spot detection"),
        "Thermal/TemperatureThresholdAlarm": QT_TRANSLATE_NOOP("QObject", "Temperature threshold alarm"),
        "CamConn": QT_TRANSLATE_NOOP("QObject", "Camera disconnected"),
        "RecErr": QT_TRANSLATE_NOOP("QObject", "Recording error"),
        "RecStatus": QT_TRANSLATE_NOOP("QObject", "Stop recording"),
        "StationConn": QT_TRANSLATE_NOOP("QObject", "Network disconnected"),
        "StorageConn": QT_TRANSLATE_NOOP("QObject", "Storage failure"),
        "StorageCapacity": QT_TRANSLATE_NOOP("QObject", "Storage full"),
        "FanStatus": QT_TRANSLATE_NOOP("QObject", "Fan error"),
        "FailoverState": QT_TRANSLATE_NOOP("QObject", "Failover server running"),
        "GpsConn": QT_TRANSLATE_NOOP("QObject", "GPS disconnected"),
        "GpsSpeed": QT_TRANSLATE_NOOP("QObject", "Speeding"),
        "Gsensor": QT_TRANSLATE_NOOP("QObject", "Abnormal G-sensor motion (Mobile NVR)"),
        "DIOStatus": QT_TRANSLATE_NOOP("QObject", "DI/DO Device DI"),
        "BruteForceAttack": QT_TRANSLATE_NOOP("QObject", "Brute force attack"),
        "CyberAttack": QT_TRANSLATE_NOOP("QObject", "Cyber attack"),
        "QuarantineEvent": QT_TRANSLATE_NOOP("QObject", "Quarantine event"),
        "SysLicense": QT_TRANSLATE_NOOP("QObject", "Trial expired"),
        "SysNetwork": QT_TRANSLATE_NOOP("QObject", "Network disconnected"),
        "SysVirMem": QT_TRANSLATE_NOOP("QObject", "Low virtual memory"),
        "SysVcaAreaReport": QT_TRANSLATE_NOOP("QObject", "Number of remaining people"),
        "ExtIODevice": QT_TRANSLATE_NOOP("QObject", "DI/DO Device DI"),
        "ExtTCPMessage": QT_TRANSLATE_NOOP("QObject", "TCP message"),
        "ExtDataMagnet": QT_TRANSLATE_NOOP("QObject", "Data magnet"),
        "ExtAccessRule": QT_TRANSLATE_NOOP("QObject", "Data magnet"),
        "VirtualTrigger": QT_TRANSLATE_NOOP("QObject", "Virtual trigger"),
        "SendMail": QT_TRANSLATE_NOOP("QObject", "Email"),
        "SMS": QT_TRANSLATE_NOOP("QObject", "GSM short message"),
        "FTP": QT_TRANSLATE_NOOP("QObject", "FTP"),
        "HTTP": QT_TRANSLATE_NOOP("QObject", "Send HTTP requests"),
        "Recording": QT_TRANSLATE_NOOP("QObject", "Start to record videos"),
        "PresetLocMove": QT_TRANSLATE_NOOP("QObject", "Go to camera presets"),
        "SetDO": QT_TRANSLATE_NOOP("QObject", "Set DO status"),
        "LaunchProgram": QT_TRANSLATE_NOOP("QObject", "Launch program"),
        "ClientNotification/Popup Window": QT_TRANSLATE_NOOP("QObject", "Send live streaming"),
        "ClientNotification/GoToEMap": QT_TRANSLATE_NOOP("QObject", "Go to E-Map"),
        "ClientNotification/SoundTheAlarm": QT_TRANSLATE_NOOP("QObject", "Sound the alarm"),
        "AddBookmark": QT_TRANSLATE_NOOP("QObject", "Add bookmark"),
        "PlayIPAudio": QT_TRANSLATE_NOOP("QObject", "Play audio file with network audio device"),
        "MobileNotification": QT_TRANSLATE_NOOP("QObject", "Send notification to mobile device")
    })
    function kindText(kind) {
        return kindTexts[kind] ? qsTranslate("QObject", kindTexts[kind]) : kind
    }
    function kindsOf(tag) {
        var kinds = ruleEntries.kinds(tag)
        for (var i = 0; i < kinds.length; ++i)
            kinds[i].text = kindText(kinds[i].kind)
        return kinds
    }
    function deviceName(id) {
        return id === "" ? "" : (site.cameraName(id) || id)
    }
    function named(list) {
        var result = []
        for (var i = 0; list && i < list.length; ++i)
            result.push({ "id": String(list[i].id), "name": list[i].name })
        return result
    }

    function openForNew() {
        alarmId = ""
        nameField.text = ""
        descriptionField.text = ""
        enabledBox.checked = true
        scheduleBox.currentIndex = 0
        originalTriggerXml = ""
        originalActionXml = ""
        triggerList.reset([])
        actionList.reset([])
        title = qsTr("Add alarm")
        open()
        nameField.forceActiveFocus()
    }
    function openForRow(row) {
        if (row < 0)
            return
        alarmId = alarmList.value(row, "idRole")
        nameField.text = alarmList.value(row, "nameRole")
        descriptionField.text = alarmList.value(row, "descriptionRole")
        enabledBox.checked = alarmList.value(row, "enabledRole")
        var schedule = alarmList.value(row, "scheduleRole") || []
        scheduleBox.currentIndex = Math.max(0, scheduleBox.find(schedule[0] || ""))
        originalTriggerXml = alarmList.value(row, "triggerXmlRole")
        originalActionXml = alarmList.value(row, "actionXmlRole")

        // The plug-in's texts for each entry: one trigger source per trigger, one type and target list
        // per action, in the order of the lists.
        var sources = alarmList.value(row, "triggerSourceRole") || []
        var triggers = []
        var triggerXmls = ruleEntries.split(originalTriggerXml)
        for (var i = 0; i < triggerXmls.length; ++i) {
            var kind = ruleEntries.kindOf(triggerXmls[i])
            var source = sources.length === triggerXmls.length ? sources[i] : null
            var detail = source ? (source.devName + " " + source.displayValue).trim() : deviceName(ruleEntries.deviceOf(triggerXmls[i]))
            triggers.push({ "xml": triggerXmls[i], "kind": kind, "isNew": false,
                            "label": kindText(kind) + (detail !== "" ? " - " + detail : "") })
        }
        triggerList.reset(triggers)

        var types = alarmList.value(row, "actionTypeRole") || []
        var targets = alarmList.value(row, "actionTargetRole") || []
        var actions = []
        var actionXmls = ruleEntries.split(originalActionXml)
        for (var j = 0; j < actionXmls.length; ++j) {
            var names = []
            var targetList = types.length === actionXmls.length ? targets[j] : []
            for (var k = 0; targetList && k < targetList.length; ++k)
                names.push((targetList[k].target + " " + targetList[k].action).trim())
            var actionKind = ruleEntries.kindOf(actionXmls[j])
            var typeText = types.length === actionXmls.length ? types[j] : kindText(actionKind)
            actions.push({ "xml": actionXmls[j], "kind": actionKind, "isNew": false,
                           "label": typeText + (names.length > 0 ? ": " + names.join(", ") : "") })
        }
        actionList.reset(actions)
        title = qsTr("Edit alarm %1").arg(alarmId)
        open()
        nameField.forceActiveFocus()
    }
    function save() {
        if (problems.length > 0)
            return false
        // An untouched list goes back as it came.
        var triggerXml = triggerList.changed ? ruleEntries.join("TriggerList", triggerList.xmlList()) : originalTriggerXml
        var actionXml = actionList.changed ? ruleEntries.join("ActionList", actionList.xmlList()) : originalActionXml
        var scheduleName = scheduleBox.currentIndex > 0 ? scheduleBox.currentText : ""
        var scheduleContent = site.scheduleContent(scheduleName)
        var isSent = isNew
            ? alarmManager.addAlarm(nameField.text, descriptionField.text, triggerXml, actionXml, "", scheduleName,
                                    scheduleContent, enabledBox.checked)
            : alarmManager.updateAlarm(alarmId, nameField.text, descriptionField.text, triggerXml, actionXml, "",
                                       scheduleName, scheduleContent, enabledBox.checked)
        if (isSent)
            submitted()
        close()
        return isSent
    }
    // Drives the editor the way a user would, for scripted runs: "-action 1", "+action SMS - +49 151 1",
    // "+trigger DI cam-02 2" (kind, device or "-", typed text), separated by commas, then saves.
    function perform(script) {
        var steps = script.split(",")
        for (var i = 0; i < steps.length; ++i) {
            var words = steps[i].trim().split(" ")
            var target = words[0].substring(1) === "trigger" ? triggerList : actionList
            var device = words[2] && words[2] !== "-" ? words[2] : ""
            if (words[0][0] === "-")
                target.remove(Number(words[1]))
            else if (!target.add(words[1], device, deviceName(device), kindText(words[1]), words.slice(3).join(" ")))
                return false
        }
        return save()
    }

    footer: DialogButtonBox {
        Button {
            text: qsTr("Save")
            enabled: editor.problems.length === 0
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
        Button {
            text: qsTr("Cancel")
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }
        onAccepted: editor.save()
        onRejected: editor.close()
    }

    ScrollView {
        anchors.fill: parent
        clip: true
        contentWidth: availableWidth

        ColumnLayout {
            id: content
            width: parent.width
            spacing: 10
            // Enter saves from any field; Escape closes the dialog without sending anything.
            Keys.onReturnPressed: editor.save()
            Keys.onEnterPressed: editor.save()

            GridLayout {
                columns: 2
                Layout.fillWidth: true
                Label { text: qsTr("Name") }
                TextField { id: nameField; Layout.fillWidth: true; selectByMouse: true; Accessible.name: qsTr("Name") }
                Label { text: qsTr("Description") }
                TextField {
                    id: descriptionField
                    Layout.fillWidth: true
                    selectByMouse: true
                    Accessible.name: qsTr("Description")
                }
                Label { text: qsTr("Schedule") }
                ComboBox {
                    id: scheduleBox
                    Layout.fillWidth: true
                    model: [qsTr("No schedule")].concat(site.schedules.map(function(schedule) { return schedule.name }))
                    Accessible.name: qsTr("Schedule")
                }
                Item { width: 1; height: 1 }
                CheckBox { id: enabledBox; text: qsTr("Enabled"); checked: true }
            }

            EntryList {
                id: triggerList
                title: qsTr("Triggers")
                Layout.fillWidth: true
                tag: "TriggerList"
                kinds: editor.visible ? editor.kindsOf("TriggerList") : []
                pickers: ({ "camera": editor.named(site.cameras), "station": editor.named(site.stations),
                            "io": editor.named(site.ioDevices) })
            }

            EntryList {
                id: actionList
                title: qsTr("Actions")
                Layout.fillWidth: true
                tag: "ActionList"
                kinds: editor.visible ? editor.kindsOf("ActionList") : []
                pickers: ({ "camera": editor.named(site.cameras), "station": editor.named(site.stations),
                            "io": editor.named(site.ioDevices), "output": editor.named(site.cameras.filter(function(camera) {
                                return camera.doNames && camera.doNames.length > 0 }).concat(site.ioDevices)),
                            "map": editor.named(site.maps), "role": editor.named(site.roles),
                            "sound": editor.soundNames.map(function(name) { return { "id": name, "name": name } }) })
                onTestRequested: function(xml) {
                    var fields = ruleEntries.fieldsOf(xml)
                    if (alarmManager.sendHttpRequest(fields.URL, fields.NeedAuth === "true", fields.User, fields.Pwd,
                                                     fields.Post === "true" ? "POST" : "GET", fields.ContentType,
                                                     fields.HTTPContent))
                        window.note(qsTr("Test request sent to %1").arg(fields.URL))
                }
            }

            Repeater {
                model: editor.problems
                delegate: Label {
                    required property string modelData
                    Layout.fillWidth: true
                    text: "\u26A0 " + modelData
                    color: "#b00020"
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}

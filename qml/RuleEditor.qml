// Adds or edits one alarm rule: name, description, enabled, schedule template, and triggers and actions
// picked from the site. An edit keeps the rule's current triggers and actions unless they are replaced.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Dialog {
    id: editor
    modal: true
    width: 720
    height: 640
    standardButtons: Dialog.Save | Dialog.Cancel

    signal submitted()

    property string alarmId: ""
    property string currentTriggerXml: ""
    property string currentActionXml: ""
    property string currentTriggerText: ""
    property string currentActionText: ""
    readonly property bool isNew: alarmId === ""

    function tr(text) { return qsTranslate("QObject", text) }

    function openForNew() {
        alarmId = ""
        nameField.text = ""
        descriptionField.text = ""
        enabledBox.checked = true
        scheduleBox.currentIndex = 0
        triggerModel.clear()
        replaceTriggers.checked = true
        replaceActions.checked = true
        title = tr("Add alarm")
        open()
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
        currentTriggerXml = alarmList.value(row, "triggerXmlRole")
        currentActionXml = alarmList.value(row, "actionXmlRole")
        currentTriggerText = window.triggerText(alarmList.value(row, "triggerTypeRole"), alarmList.value(row, "triggerSourceRole"))
        currentActionText = window.actionText(alarmList.value(row, "actionTypeRole"), alarmList.value(row, "actionTargetRole"))
        triggerModel.clear()
        replaceTriggers.checked = false
        replaceActions.checked = false
        title = tr("Edit alarm") + " " + alarmId
        open()
    }
    function triggerCameras() {
        var cameras = []
        for (var i = 0; i < triggerModel.count; ++i) {
            var device = triggerModel.get(i).device
            if (cameras.indexOf(device) < 0)
                cameras.push(device)
        }
        return cameras
    }

    onAccepted: {
        var triggers = []
        for (var i = 0; i < triggerModel.count; ++i) {
            var t = triggerModel.get(i)
            triggers.push({ "kind": t.kind, "device": t.device, "index": t.index, "name": t.name })
        }
        var cameras = triggerCameras()
        var actions = []
        if (popupBox.checked) actions.push({ "kind": "popup", "cameras": cameras })
        if (recordBox.checked) actions.push({ "kind": "record", "cameras": cameras })
        if (soundBox.checked) actions.push({ "kind": "sound", "sound": soundList.currentText })
        if (mailBox.checked) actions.push({ "kind": "mail", "to": mailField.text, "subject": nameField.text,
                                            "message": descriptionField.text })
        if (smsBox.checked) actions.push({ "kind": "sms", "phone": smsField.text, "message": nameField.text })

        var triggerXml = isNew || replaceTriggers.checked ? site.triggerListXml(triggers) : currentTriggerXml
        var actionXml = isNew || replaceActions.checked ? site.actionListXml(actions) : currentActionXml
        var scheduleName = scheduleBox.currentText
        var scheduleContent = site.scheduleContent(scheduleName)
        var isSent = isNew
            ? alarmManager.addAlarm(nameField.text, descriptionField.text, triggerXml, actionXml, "", scheduleName,
                                    scheduleContent, enabledBox.checked)
            : alarmManager.updateAlarm(alarmId, nameField.text, descriptionField.text, triggerXml, actionXml, "",
                                       scheduleName, scheduleContent, enabledBox.checked)
        if (isSent)
            submitted()
    }

    ListModel { id: triggerModel }

    ScrollView {
        anchors.fill: parent
        clip: true
        contentWidth: availableWidth

        ColumnLayout {
            width: parent.width
            spacing: 10

            GridLayout {
                columns: 2
                Layout.fillWidth: true
                Label { text: tr("Name") }
                TextField { id: nameField; Layout.fillWidth: true; selectByMouse: true }
                Label { text: tr("Description") }
                TextField { id: descriptionField; Layout.fillWidth: true; selectByMouse: true }
                Label { text: tr("Schedule") }
                ComboBox { id: scheduleBox; Layout.fillWidth: true; model: site.schedules; textRole: "name" }
                Label { text: "" }
                CheckBox { id: enabledBox; text: tr("Enabled"); checked: true }
            }

            GroupBox {
                title: tr("Triggers")
                Layout.fillWidth: true
                ColumnLayout {
                    anchors.fill: parent
                    Label {
                        visible: !isNew
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                        text: tr("Current") + ": " + currentTriggerText
                    }
                    CheckBox { id: replaceTriggers; visible: !isNew; text: tr("Replace with the triggers below") }
                    RowLayout {
                        enabled: isNew || replaceTriggers.checked
                        Layout.fillWidth: true
                        ComboBox {
                            id: triggerKind
                            Layout.preferredWidth: 170
                            textRole: "text"
                            valueRole: "kind"
                            model: [
                                { "text": tr("Virtual trigger"), "kind": "virtual" },
                                { "text": tr("Motion detection"), "kind": "motion" },
                                { "text": tr("Camera DI"), "kind": "di" },
                                { "text": tr("Line crossing detection"), "kind": "line" },
                                { "text": tr("Tampering detection"), "kind": "tampering" },
                                { "text": tr("Camera disconnected"), "kind": "cameraLost" }
                            ]
                        }
                        ComboBox {
                            id: triggerCamera
                            Layout.fillWidth: true
                            model: site.cameras
                            textRole: "name"
                            valueRole: "id"
                        }
                        SpinBox {
                            id: triggerIndex
                            visible: triggerKind.currentValue === "motion" || triggerKind.currentValue === "di"
                            from: 1
                            to: 8
                        }
                        TextField {
                            id: triggerName
                            visible: triggerKind.currentValue === "virtual" || triggerKind.currentValue === "line"
                            placeholderText: tr("Name")
                            Layout.preferredWidth: 120
                        }
                        Button {
                            text: tr("Add")
                            onClicked: triggerModel.append({ "kind": triggerKind.currentValue, "label": triggerKind.currentText,
                                                             "device": triggerCamera.currentValue,
                                                             "deviceName": triggerCamera.currentText,
                                                             "index": triggerIndex.value,
                                                             "name": triggerName.text || triggerKind.currentText })
                        }
                    }
                    Repeater {
                        model: triggerModel
                        delegate: RowLayout {
                            required property int index
                            required property string label
                            required property string deviceName
                            required property string name
                            Label { text: label + " - " + deviceName + (name !== label ? " (" + name + ")" : ""); Layout.fillWidth: true }
                            ToolButton { text: "\u2715"; onClicked: triggerModel.remove(index) }
                        }
                    }
                }
            }

            GroupBox {
                title: tr("Actions")
                Layout.fillWidth: true
                ColumnLayout {
                    anchors.fill: parent
                    Label {
                        visible: !isNew
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                        text: tr("Current") + ": " + currentActionText
                    }
                    CheckBox { id: replaceActions; visible: !isNew; text: tr("Replace with the actions below") }
                    ColumnLayout {
                        enabled: isNew || replaceActions.checked
                        CheckBox { id: popupBox; text: tr("Send live streaming") + " (" + tr("trigger cameras") + ")"; checked: true }
                        CheckBox { id: recordBox; text: tr("Start to record videos") + " (" + tr("trigger cameras") + ")" }
                        RowLayout {
                            CheckBox { id: soundBox; text: tr("Sound the alarm") }
                            ComboBox { id: soundList; model: site.sounds; enabled: soundBox.checked }
                        }
                        RowLayout {
                            CheckBox { id: mailBox; text: tr("Email") }
                            TextField { id: mailField; enabled: mailBox.checked; placeholderText: "security@example.com"; Layout.preferredWidth: 260 }
                        }
                        RowLayout {
                            CheckBox { id: smsBox; text: tr("GSM short message") }
                            TextField { id: smsField; enabled: smsBox.checked; placeholderText: "+49 151 0000000"; Layout.preferredWidth: 200 }
                        }
                    }
                }
            }
        }
    }
}

// Example page of the alarm plug-in: the alarm list of the site with search, sorting, the enabled
// switch per rule, multi-select, add/edit/duplicate, a camera's view-cell buttons and the alarms that
// fire. Context properties from the host: alarmManager (the plug-in), alarmList (the plug-in's list with
// an enabled/disabled switch on top), site, host, initialCamera.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

ApplicationWindow {
    id: window
    width: 1440
    height: 860
    visible: true
    title: tr("Alarm management") + " - " + site.name

    // Role numbers of the plug-in's alarm list; fixed by the plug-in's model.
    readonly property int idRole: 257
    readonly property int nameRole: 258
    readonly property int enabledRole: 259
    readonly property int triggerSourceRole: 260
    readonly property int triggerTypeRole: 261
    readonly property int actionTypeRole: 262
    readonly property int scheduleRole: 264

    property bool loading: true
    property int pendingRequests: 0
    property var selection: ({})
    property int selectionCount: 0
    property int sortRole: -1
    property bool sortDescending: false
    property string statusText: ""
    property string viewCellCamera: initialCamera !== "" ? initialCamera
                                                         : (site.cameras.length > 0 ? site.cameras[0].id : "")

    // The page's texts share the plug-in's translation context.
    function tr(text) { return qsTranslate("QObject", text) }

    function triggerText(type, sources) {
        var parts = []
        for (var i = 0; sources && i < sources.length; ++i)
            parts.push((sources[i].devName + " " + sources[i].displayValue).trim())
        return parts.length > 0 ? type + ": " + parts.join(", ") : type
    }
    function actionText(types, targets) {
        var parts = []
        for (var i = 0; types && i < types.length; ++i) {
            var names = []
            var list = targets ? targets[i] : []
            for (var j = 0; list && j < list.length; ++j)
                names.push((list[j].target + " " + list[j].action).trim())
            parts.push(names.length > 0 ? types[i] + " (" + names.join(", ") + ")" : types[i])
        }
        return parts.join("; ")
    }
    function setSelected(id, isSelected) {
        var next = Object.assign({}, selection)
        if (isSelected)
            next[id] = true
        else
            delete next[id]
        selection = next
        selectionCount = Object.keys(next).length
    }
    function selectedRows() {
        var rows = []
        for (var row = 0; row < alarmList.count; ++row) {
            if (selection[alarmList.value(row, "idRole")])
                rows.push(alarmList.sourceRow(row))
        }
        return rows
    }
    function toggleSelected(enable) {
        var entries = []
        for (var id in selection)
            entries.push({ "id": id, "enable": enable })
        if (entries.length > 0 && alarmManager.toggleAlarm(entries))
            pendingRequests++
    }
    function sortBy(role) {
        sortDescending = sortRole === role ? !sortDescending : false
        sortRole = role
        alarmManager.getAlarmFilterModel().sortByRole(role, sortDescending ? Qt.DescendingOrder : Qt.AscendingOrder)
    }
    function reload() {
        loading = true
        if (!alarmManager.getAllAlarm())
            loading = false
    }
    function currentRow() {
        return alarmListView.currentIndex >= 0 && alarmListView.currentIndex < alarmList.count ? alarmListView.currentIndex : -1
    }
    function duplicate(row) {
        var schedule = alarmList.value(row, "scheduleRole") || []
        if (alarmManager.addAlarm(alarmList.value(row, "nameRole") + " " + tr("(copy)"),
                                  alarmList.value(row, "descriptionRole"), alarmList.value(row, "triggerXmlRole"),
                                  alarmList.value(row, "actionXmlRole"), "", schedule[0] || "", schedule[2] || "",
                                  alarmList.value(row, "enabledRole")))
            pendingRequests++
    }
    // What a user does with the page's buttons, by name; the host's scripted runs use it.
    function performAction(action, id) {
        var row = -1
        for (var r = 0; r < alarmList.count && row < 0; ++r) {
            if (alarmList.value(r, "idRole") === id)
                row = r
        }
        if (row < 0)
            return false
        if (action === "duplicate") {
            alarmListView.currentIndex = row
            duplicate(row)
            return true
        }
        selection = ({})
        setSelected(id, true)
        if (action === "enable" || action === "disable") {
            toggleSelected(action === "enable")
            return true
        }
        if (action === "delete") {
            confirmDelete.accepted()
            return true
        }
        return false
    }
    function note(text) { statusText = new Date().toLocaleTimeString(Qt.locale(), "hh:mm:ss") + "  " + text }

    Connections {
        target: alarmManager
        function onGetAlarmResp(success) {
            window.loading = false
            note(success ? tr("Alarm list loaded") : tr("The alarm list could not be loaded"))
        }
        function onAddAlarmResp(success, id) {
            window.pendingRequests--
            note(success ? tr("Alarm added") + " (" + id + ")" : tr("Adding the alarm failed"))
        }
        function onUpdateAlarmResp(success, id) {
            window.pendingRequests--
            note(success ? tr("Alarm saved") : tr("Saving failed: the alarm was changed elsewhere or is invalid"))
        }
        function onDeleteAlarmsResp(allReq, cntSuccess) {
            window.pendingRequests--
            window.selection = ({})
            window.selectionCount = 0
            note(tr("Deleted") + " " + cntSuccess + " / " + allReq)
        }
        function onToggleAlarmResp(success) {
            window.pendingRequests--
            note(success ? tr("Alarms switched") : tr("Switching failed"))
        }
        function onSendVirtualTriggerAlarmResp(success, alarmId) {
            note(success ? tr("Virtual trigger sent") : tr("No active alarm holds this trigger"))
        }
        function onAlarmTriggered(name, type, nodeID, serverTime, eventType, eventIndex, eventValue, deviceName, alarmId, timecardId) {
            firedModel.insert(0, { "kind": "alarm", "title": name,
                                   "detail": deviceName + " - " + eventType + (eventValue !== "" ? ": " + eventValue : ""),
                                   "time": new Date(serverTime).toLocaleTimeString(Qt.locale(), "hh:mm:ss") })
        }
        function onClientNotification(type, data, timecardId) {
            var kinds = [tr("Go to E-Map"), tr("Popup window"), tr("Sound the alarm")]
            var items = []
            for (var i = 0; data && i < data.length; ++i) {
                if (type === 0)
                    items.push(mapName(data[i].mapId) + cameraNames(data[i].playCamList))
                else if (type === 2)
                    items.push(data[i].name)
                else
                    items.push(site.cameraName(data[i]) || data[i])
            }
            firedModel.insert(0, { "kind": "notification", "title": kinds[type] || "", "detail": items.join(", "),
                                   "time": new Date().toLocaleTimeString(Qt.locale(), "hh:mm:ss") })
        }
    }

    function mapName(mapId) {
        for (var i = 0; i < site.maps.length; ++i) {
            if (site.maps[i].id === mapId)
                return site.maps[i].name
        }
        return mapId
    }
    function cameraNames(cameras) {
        var names = []
        for (var i = 0; cameras && i < cameras.length; ++i)
            names.push(site.cameraName(cameras[i]) || cameras[i])
        return names.length > 0 ? " (" + names.join(", ") + ")" : ""
    }

    header: ToolBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            spacing: 8
            Label {
                text: tr("Alarm rules")
                font.pixelSize: 18
                font.bold: true
            }
            TextField {
                id: searchField
                objectName: "searchField"
                Layout.preferredWidth: 280
                placeholderText: tr("Search name, trigger, action, schedule")
                selectByMouse: true
                onTextChanged: alarmManager.getAlarmFilterModel().applyFilter(text)
            }
            ComboBox {
                id: stateFilter
                objectName: "stateFilter"
                Layout.preferredWidth: 150
                model: [tr("All alarms"), tr("Enabled only"), tr("Disabled only")]
                onActivated: alarmList.state = currentIndex
            }
            Label {
                text: alarmList.count + " " + tr("shown")
                color: palette.placeholderText
            }
            Item { Layout.fillWidth: true }
            ToolButton { text: tr("Add"); onClicked: editor.openForNew() }
            ToolButton {
                text: tr("Edit")
                enabled: currentRow() >= 0
                onClicked: editor.openForRow(currentRow())
            }
            ToolButton {
                text: tr("Duplicate")
                enabled: currentRow() >= 0
                onClicked: duplicate(currentRow())
            }
            ToolButton {
                text: tr("Enable") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: toggleSelected(true)
            }
            ToolButton {
                text: tr("Disable") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: toggleSelected(false)
            }
            ToolButton {
                text: tr("Delete") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: confirmDelete.open()
            }
            ToolButton { text: tr("Reload"); onClicked: reload() }
            ComboBox {
                id: languageBox
                Layout.preferredWidth: 80
                model: host.languages
                currentIndex: Math.max(0, host.languages.indexOf(host.language))
                onActivated: { window.loading = true; host.setLanguage(currentText) }
            }
        }
    }

    footer: ToolBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            Label { text: statusText; Layout.fillWidth: true; elide: Text.ElideRight }
            ProgressBar {
                indeterminate: true
                visible: loading || pendingRequests > 0
                Layout.preferredWidth: 160
            }
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.margins: 8
        spacing: 8

        Frame {
            Layout.fillWidth: true
            Layout.fillHeight: true
            padding: 0

            ColumnLayout {
                anchors.fill: parent
                spacing: 0

                // Column headers; a click sorts by that column, a second click reverses.
                Rectangle {
                    Layout.fillWidth: true
                    height: 34
                    color: palette.alternateBase
                    RowLayout {
                        id: headerRow
                        anchors.fill: parent
                        anchors.leftMargin: 8
                        spacing: 6
                        CheckBox {
                            Layout.preferredWidth: 32
                            checked: selectionCount > 0 && selectionCount === alarmList.count
                            onClicked: {
                                var next = {}
                                if (checked) {
                                    for (var row = 0; row < alarmList.count; ++row)
                                        next[alarmList.value(row, "idRole")] = true
                                }
                                selection = next
                                selectionCount = Object.keys(next).length
                            }
                        }
                        Repeater {
                            model: [
                                { "title": tr("On"), "role": enabledRole, "share": 0 },
                                { "title": tr("Name"), "role": nameRole, "share": 0.24 },
                                { "title": tr("Trigger"), "role": triggerTypeRole, "share": 0.3 },
                                { "title": tr("Actions"), "role": actionTypeRole, "share": 0.34 },
                                { "title": tr("Schedule"), "role": scheduleRole, "share": 0.12 }
                            ]
                            delegate: ItemDelegate {
                                required property var modelData
                                Layout.preferredWidth: modelData.share > 0 ? (headerRow.width - 130) * modelData.share : 56
                                Layout.fillHeight: true
                                text: modelData.title + (sortRole === modelData.role ? (sortDescending ? "  \u25BC" : "  \u25B2") : "")
                                font.bold: true
                                onClicked: sortBy(modelData.role)
                            }
                        }
                    }
                }

                ListView {
                    id: alarmListView
                    objectName: "alarmListView"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: alarmList
                    currentIndex: -1
                    ScrollBar.vertical: ScrollBar { }
                    delegate: ItemDelegate {
                        id: rowDelegate
                        required property int index
                        required property var model
                        width: alarmListView.width
                        height: 62
                        highlighted: ListView.isCurrentItem
                        onClicked: alarmListView.currentIndex = index
                        onDoubleClicked: editor.openForRow(index)
                        background: Rectangle {
                            color: rowDelegate.highlighted ? palette.highlight
                                 : (rowDelegate.index % 2 ? palette.alternateBase : palette.base)
                            opacity: rowDelegate.highlighted ? 0.35 : 1
                        }
                        contentItem: RowLayout {
                            spacing: 6
                            CheckBox {
                                Layout.preferredWidth: 32
                                checked: !!selection[model.idRole]
                                onClicked: setSelected(model.idRole, checked)
                            }
                            Switch {
                                Layout.preferredWidth: 56
                                checked: model.enabledRole
                                onToggled: {
                                    if (alarmManager.toggleAlarm([{ "id": model.idRole, "enable": checked }]))
                                        pendingRequests++
                                }
                            }
                            ColumnLayout {
                                Layout.preferredWidth: (headerRow.width - 130) * 0.24
                                spacing: 2
                                Label {
                                    Layout.fillWidth: true
                                    text: model.nameRole
                                    font.bold: true
                                    elide: Text.ElideRight
                                    color: model.enabledRole ? palette.text : palette.placeholderText
                                }
                                Label {
                                    Layout.fillWidth: true
                                    text: model.descriptionRole
                                    font.pixelSize: 11
                                    color: palette.placeholderText
                                    elide: Text.ElideRight
                                }
                            }
                            Label {
                                Layout.preferredWidth: (headerRow.width - 130) * 0.3
                                text: triggerText(model.triggerTypeRole, model.triggerSourceRole)
                                wrapMode: Text.Wrap
                                maximumLineCount: 2
                                elide: Text.ElideRight
                                font.pixelSize: 12
                            }
                            Label {
                                Layout.preferredWidth: (headerRow.width - 130) * 0.34
                                text: actionText(model.actionTypeRole, model.actionTargetRole)
                                wrapMode: Text.Wrap
                                maximumLineCount: 2
                                elide: Text.ElideRight
                                font.pixelSize: 12
                            }
                            Label {
                                Layout.preferredWidth: (headerRow.width - 130) * 0.12
                                text: model.scheduleRole && model.scheduleRole.length > 0 ? model.scheduleRole[0] : ""
                                elide: Text.ElideRight
                                font.pixelSize: 12
                            }
                        }
                    }

                    Label {
                        anchors.centerIn: parent
                        visible: !loading && alarmList.count === 0
                        text: tr("No alarm matches")
                        color: palette.placeholderText
                    }
                }
            }

            // The first list can take a while on a slow link.
            Rectangle {
                anchors.fill: parent
                visible: loading
                color: Qt.rgba(1, 1, 1, 0.7)
                Column {
                    anchors.centerIn: parent
                    spacing: 10
                    BusyIndicator { anchors.horizontalCenter: parent.horizontalCenter; running: loading }
                    Label { text: tr("Loading alarm list...") }
                }
            }
        }

        ColumnLayout {
            Layout.preferredWidth: 340
            Layout.maximumWidth: 340
            Layout.fillHeight: true
            spacing: 8

            GroupBox {
                title: tr("View cell")
                Layout.fillWidth: true
                ColumnLayout {
                    anchors.fill: parent
                    ComboBox {
                        id: cameraBox
                        objectName: "cameraBox"
                        Layout.fillWidth: true
                        model: site.cameras
                        textRole: "name"
                        valueRole: "id"
                        Component.onCompleted: currentIndex = Math.max(0, indexOfValue(viewCellCamera))
                        onActivated: viewCellCamera = currentValue
                    }
                    Flow {
                        Layout.fillWidth: true
                        spacing: 6
                        Repeater {
                            model: viewCellCamera !== "" ? alarmManager.getAlarmViewCellTriggerModel(viewCellCamera) : null
                            delegate: Button {
                                required property var model
                                text: model.nameRole
                                onClicked: alarmManager.sendVirtualTriggerAlarm(model.nameRole, viewCellCamera,
                                                                                model.iconTypeRole, Number(model.idRole) || 0,
                                                                                site.cameraName(viewCellCamera))
                            }
                        }
                    }
                    Label {
                        Layout.fillWidth: true
                        wrapMode: Text.Wrap
                        font.pixelSize: 11
                        color: palette.placeholderText
                        text: tr("Virtual triggers of the enabled alarms on this camera")
                    }
                }
            }

            GroupBox {
                title: tr("Triggered alarms and notifications")
                Layout.fillWidth: true
                Layout.fillHeight: true
                ColumnLayout {
                    anchors.fill: parent
                    ListView {
                        id: firedView
                        objectName: "firedView"
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        clip: true
                        model: ListModel { id: firedModel }
                        spacing: 4
                        delegate: Rectangle {
                            required property string kind
                            required property string title
                            required property string detail
                            required property string time
                            width: firedView.width
                            height: firedColumn.implicitHeight + 8
                            radius: 4
                            color: kind === "alarm" ? "#fde8e8" : "#e8f0fd"
                            Column {
                                id: firedColumn
                                anchors.fill: parent
                                anchors.margins: 4
                                Label { text: time + "  " + title; font.bold: true; width: parent.width; elide: Text.ElideRight }
                                Label { text: detail; font.pixelSize: 11; width: parent.width; wrapMode: Text.Wrap }
                            }
                        }
                    }
                    Button {
                        text: tr("Clear")
                        enabled: firedModel.count > 0
                        onClicked: { firedModel.clear(); alarmManager.closeAlarmNotification() }
                    }
                }
            }
        }
    }

    Dialog {
        id: confirmDelete
        anchors.centerIn: parent
        modal: true
        title: tr("Delete alarms")
        standardButtons: Dialog.Yes | Dialog.No
        Label { text: tr("Delete the selected alarms?") + " (" + selectionCount + ")" }
        onAccepted: {
            if (alarmManager.deleteAlarms(selectedRows()))
                pendingRequests++
        }
    }

    RuleEditor {
        id: editor
        objectName: "ruleEditor"
        anchors.centerIn: parent
        onSubmitted: pendingRequests++
    }
}

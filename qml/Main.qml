// Example page of the alarm plug-in: the alarm list of the site with search, sorting, the enabled
// switch per rule, multi-select, add/edit/duplicate, a camera's view-cell buttons, the alarms that fire
// with their sounds, pausing all alarms and the server's settings. Every invokable and answer signal of
// the plug-in has its place here. Context properties from the host: alarmManager (the plug-in), alarmList
// (the plug-in's list with an enabled/disabled switch on top), site, host, initialCamera, ruleEntries.
//
// Keyboard: Tab walks the controls; Ctrl+F goes to the search field and Down from there into the list;
// in the list, arrows move, Space selects, Enter edits, Delete deletes the selection after confirmation.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

ApplicationWindow {
    id: window
    width: 1440
    height: 860
    visible: true
    title: qsTr("Alarm management") + " - " + site.name

    // Role numbers of the plug-in's alarm list; fixed by the plug-in's model.
    readonly property int idRole: 257
    readonly property int nameRole: 258
    readonly property int enabledRole: 259
    readonly property int triggerSourceRole: 260
    readonly property int triggerTypeRole: 261
    readonly property int actionTypeRole: 262
    readonly property int scheduleRole: 264

    property bool loading: true
    property int totalCount: 0
    property var soundNames: []
    property bool isAudioMissingNoted: false
    property int pauseMinutes: 0
    property int pendingRequests: 0
    property var selection: ({})
    property int selectionCount: 0
    property int sortRole: -1
    property bool sortDescending: false
    property string statusText: ""
    property string viewCellCamera: initialCamera !== "" ? initialCamera
                                                         : (site.cameras.length > 0 ? site.cameras[0].id : "")

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
        if (alarmManager.addAlarm(alarmList.value(row, "nameRole") + " " + qsTr("(copy)"),
                                  alarmList.value(row, "descriptionRole"), alarmList.value(row, "triggerXmlRole"),
                                  alarmList.value(row, "actionXmlRole"), "", schedule[0] || "", schedule[2] || "",
                                  alarmList.value(row, "enabledRole")))
            pendingRequests++
    }
    // What a user does with the page's buttons, by name; the host's scripted runs use it.
    function performAction(action, id, argument) {
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
        if (action === "edit") {
            alarmListView.currentIndex = row
            editor.openForRow(row)
            return editor.perform(argument)
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
    // What the list shows, row by row, as JSON for scripted runs.
    function shownRows() {
        var rows = []
        for (var row = 0; row < alarmList.count; ++row) {
            rows.push({ "id": alarmList.value(row, "idRole"), "name": alarmList.value(row, "nameRole"),
                        "trigger": triggerText(alarmList.value(row, "triggerTypeRole"), alarmList.value(row, "triggerSourceRole")),
                        "actions": actionText(alarmList.value(row, "actionTypeRole"), alarmList.value(row, "actionTargetRole")),
                        "unknownDevices": ruleEntries.unknownDevices(alarmList.value(row, "triggerXmlRole"),
                                                                     alarmList.value(row, "actionXmlRole")) })
        }
        return JSON.stringify(rows)
    }
    function soundTheAlarm(names) {
        if (muteSwitch.checked || names.length === 0)
            return
        soundLoader.active = true
        var url = host.soundUrl(names[0])
        if (!soundLoader.item.hasOutput) {
            if (!isAudioMissingNoted)
                note(qsTr("No audio device: alarm sounds are not played"))
            isAudioMissingNoted = true
        } else if (url === "") {
            note(qsTr("The sound %1 is not in the local sound store").arg(names[0]))
        } else {
            soundLoader.item.play(url, names[0])
        }
    }
    function removeFired(kind, nodeIds) {
        for (var i = firedModel.count - 1; i >= 0; --i) {
            var entry = firedModel.get(i)
            if (entry.kind === kind && nodeIds.indexOf(entry.nodeId) >= 0)
                firedModel.remove(i)
        }
    }
    function firedNodes(kind) {
        var nodes = []
        for (var i = 0; i < firedModel.count; ++i) {
            var entry = firedModel.get(i)
            if (entry.kind === kind && entry.nodeId !== "" && nodes.indexOf(entry.nodeId) < 0)
                nodes.push(entry.nodeId)
        }
        return nodes
    }
    function countTotal() { totalCount = alarmManager.getAlarmTranslatedModel().rowCount() }

    Component.onCompleted: {
        alarmManager.getAlarmSoundList()
        alarmManager.getReserveTime()
        // Keyboard work starts in the search field; Down goes on into the list.
        searchField.forceActiveFocus()
    }
    Shortcut { sequence: StandardKey.Find; onActivated: searchField.forceActiveFocus() }
    Shortcut { sequence: StandardKey.Refresh; onActivated: reload() }

    Connections {
        target: alarmManager
        function onGetAlarmResp(success) {
            window.loading = false
            window.countTotal()
            note(success ? qsTr("Alarm list loaded") : qsTr("The alarm list could not be loaded"))
        }
        function onAddAlarmResp(success, id) {
            window.pendingRequests--
            window.countTotal()
            note(success ? qsTr("Alarm %1 added").arg(id) : qsTr("Adding the alarm failed"))
        }
        function onUpdateAlarmResp(success, id) {
            window.pendingRequests--
            note(success ? qsTr("Alarm saved") : qsTr("Saving failed: the alarm was changed elsewhere or is invalid"))
        }
        function onDeleteAlarmsResp(allReq, cntSuccess) {
            window.pendingRequests--
            window.selection = ({})
            window.selectionCount = 0
            window.countTotal()
            note(qsTr("%n of %1 alarm(s) deleted", "", cntSuccess).arg(allReq))
        }
        function onToggleAlarmResp(success) {
            window.pendingRequests--
            note(success && alarmManager.getToggleAlarmResult() ? qsTr("Alarms switched") : qsTr("Switching failed"))
        }
        function onToggleAllAlarmResp(success) {
            window.pendingRequests--
            if (!success || !alarmManager.getToggleAllAlarmResult())
                note(qsTr("Pausing or resuming all alarms failed"))
            else if (window.pauseMinutes > 0)
                note(qsTr("All alarms paused for %n minute(s)", "", window.pauseMinutes))
            else
                note(qsTr("All alarms resumed"))
        }
        function onGetAlarmSoundListResp(alarmSoundList) { window.soundNames = alarmSoundList }
        function onGetReserveTimeResp(success, reserveTime) {
            if (success)
                reserveBox.value = reserveTime
            else
                note(qsTr("The reserve time could not be read"))
        }
        function onUpdateReserveTimeResp(success) {
            window.pendingRequests--
            note(success ? qsTr("Reserve time saved") : qsTr("Saving the reserve time failed"))
        }
        function onSendHttpRequestResp(success, errorCode) {
            note(success ? qsTr("Test request answered") : qsTr("Test request failed: %1").arg(errorCode))
        }
        function onHttpActionResponsed(errorCode) { note(qsTr("An alarm's HTTP request answered: %1").arg(errorCode)) }
        function onAlarmNotify(message) { note(message) }
        function onAlarmDeleted(id) { note(qsTr("Alarm %1 was deleted").arg(id)) }
        function onUpdateAlarmScheduleResp(success, id) {
            note(success ? qsTr("Schedule of alarm %1 saved").arg(id) : qsTr("Saving the schedule failed"))
        }
        function onUpdateAllAlarmScheduleResp(success, templateName) {
            note(success ? qsTr("Schedule %1 saved").arg(templateName) : qsTr("Saving the schedule failed"))
        }
        function onCloseAlarmTabResp(nodeIdList) { window.removeFired("alarm", nodeIdList) }
        function onCloseEMapTabResp(nodeIdList) { window.removeFired("map", nodeIdList) }
        function onCloseAlarmNotificationResp() {
            firedModel.clear()
            if (soundLoader.item)
                soundLoader.item.stop()
        }
        function onSendVirtualTriggerAlarmResp(success, alarmId) {
            note(success ? qsTr("Virtual trigger sent") : qsTr("No active alarm holds this trigger"))
        }
        function onAlarmTriggered(name, type, nodeID, serverTime, eventType, eventIndex, eventValue, deviceName, alarmId, timecardId) {
            firedModel.insert(0, { "kind": "alarm", "type": -1, "title": name, "nodeId": nodeID,
                                   "detail": deviceName + " - " + eventType + (eventValue !== "" ? ": " + eventValue : ""),
                                   "time": new Date(serverTime).toLocaleTimeString(Qt.locale(), "hh:mm:ss") })
        }
        function onClientNotification(type, data, timecardId) {
            var items = []
            var sounds = []
            var maps = []
            for (var i = 0; data && i < data.length; ++i) {
                if (type === 0) {
                    items.push(mapName(data[i].mapId) + cameraNames(data[i].playCamList))
                    maps.push(data[i].mapId)
                } else if (type === 2) {
                    items.push(data[i].name)
                    sounds.push(data[i].name)
                } else {
                    items.push(site.cameraName(data[i]) || data[i])
                }
            }
            if (type === 2)
                window.soundTheAlarm(sounds)
            // An e-map notification opens a map tab, which "Close map tabs" closes by its map. Its title is
            // made when shown, so that it follows the language.
            firedModel.insert(0, { "kind": type === 0 ? "map" : "notification", "type": type, "title": "",
                                   "nodeId": maps.length > 0 ? maps[0] : "", "detail": items.join(", "),
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
                text: qsTr("Alarm rules")
                font.pixelSize: 18
                font.bold: true
            }
            TextField {
                id: searchField
                objectName: "searchField"
                Layout.preferredWidth: 280
                placeholderText: qsTr("Search name, trigger, action, schedule")
                selectByMouse: true
                onTextChanged: alarmManager.getAlarmFilterModel().applyFilter(text)
                Keys.onDownPressed: alarmListView.forceActiveFocus()
                Keys.onEscapePressed: text = ""
            }
            ComboBox {
                id: stateFilter
                objectName: "stateFilter"
                Layout.preferredWidth: 150
                model: [qsTr("All alarms"), qsTr("Enabled only"), qsTr("Disabled only")]
                onActivated: alarmList.state = currentIndex
            }
            Label {
                objectName: "countLabel"
                text: qsTr("%1 of %n rule(s) shown", "", totalCount).arg(alarmList.count)
                color: palette.placeholderText
            }
            Item { Layout.fillWidth: true }
            ToolButton { text: qsTr("Add"); onClicked: editor.openForNew() }
            ToolButton {
                text: qsTr("Edit")
                enabled: currentRow() >= 0
                onClicked: editor.openForRow(currentRow())
            }
            ToolButton {
                text: qsTr("Duplicate")
                enabled: currentRow() >= 0
                onClicked: duplicate(currentRow())
            }
            ToolButton {
                text: qsTr("Enable") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: toggleSelected(true)
            }
            ToolButton {
                text: qsTr("Disable") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: toggleSelected(false)
            }
            ToolButton {
                text: qsTr("Delete") + (selectionCount > 0 ? " (" + selectionCount + ")" : "")
                enabled: selectionCount > 0
                onClicked: confirmDelete.open()
            }
            ToolButton { text: qsTr("Reload"); onClicked: reload() }
            ComboBox {
                id: languageBox
                Layout.preferredWidth: 80
                model: host.languages
                currentIndex: Math.max(0, host.languages.indexOf(host.language))
                Accessible.name: qsTr("Language")
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
                                { "title": qsTr("On"), "role": enabledRole, "share": 0 },
                                { "title": qsTr("Name"), "role": nameRole, "share": 0.24 },
                                { "title": qsTr("Trigger"), "role": triggerTypeRole, "share": 0.3 },
                                { "title": qsTr("Actions"), "role": actionTypeRole, "share": 0.34 },
                                { "title": qsTr("Schedule"), "role": scheduleRole, "share": 0.12 }
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
                    activeFocusOnTab: true
                    keyNavigationEnabled: true
                    highlightMoveDuration: 0
                    ScrollBar.vertical: ScrollBar { }
                    Keys.onReturnPressed: editor.openForRow(currentRow())
                    Keys.onEnterPressed: editor.openForRow(currentRow())
                    Keys.onSpacePressed: {
                        if (currentRow() >= 0) {
                            var id = alarmList.value(currentRow(), "idRole")
                            setSelected(id, !selection[id])
                        }
                    }
                    Keys.onDeletePressed: {
                        if (selectionCount === 0 && currentRow() >= 0)
                            setSelected(alarmList.value(currentRow(), "idRole"), true)
                        if (selectionCount > 0)
                            confirmDelete.open()
                    }
                    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
                    delegate: ItemDelegate {
                        id: rowDelegate
                        required property int index
                        required property var model
                        width: alarmListView.width
                        height: 62
                        readonly property var unknownDevices: ruleEntries.unknownDevices(model.triggerXmlRole, model.actionXmlRole)
                        highlighted: ListView.isCurrentItem
                        focusPolicy: Qt.NoFocus
                        onClicked: { alarmListView.currentIndex = index; alarmListView.forceActiveFocus() }
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
                                focusPolicy: Qt.NoFocus
                                checked: !!selection[model.idRole]
                                onClicked: setSelected(model.idRole, checked)
                            }
                            Switch {
                                Layout.preferredWidth: 56
                                focusPolicy: Qt.NoFocus
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
                                    visible: rowDelegate.unknownDevices.length === 0
                                    text: model.descriptionRole
                                    font.pixelSize: 11
                                    color: palette.placeholderText
                                    elide: Text.ElideRight
                                }
                                // A rule naming a device the site no longer has cannot fire as meant.
                                Label {
                                    Layout.fillWidth: true
                                    visible: rowDelegate.unknownDevices.length > 0
                                    text: "\u26A0 " + qsTr("%n unknown device(s): %1", "", rowDelegate.unknownDevices.length)
                                                      .arg(rowDelegate.unknownDevices.join(", "))
                                    font.pixelSize: 11
                                    font.bold: true
                                    color: "#b00020"
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
                        text: qsTr("No alarm matches")
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
                    Label { text: qsTr("Loading alarm list...") }
                }
            }
        }

        ColumnLayout {
            Layout.preferredWidth: 340
            Layout.maximumWidth: 340
            Layout.fillHeight: true
            spacing: 8

            GroupBox {
                title: qsTr("View cell")
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
                        text: qsTr("Virtual triggers of the enabled alarms on this camera")
                    }
                }
            }

            GroupBox {
                title: qsTr("Server settings")
                Layout.fillWidth: true
                ColumnLayout {
                    anchors.fill: parent
                    Label { text: qsTr("Keep alarm records") }
                    RowLayout {
                        SpinBox {
                            id: reserveBox
                            objectName: "reserveBox"
                            Layout.fillWidth: true
                            from: 1
                            to: 365
                            editable: true
                            // The page's language: a switch redraws the text, in the new words.
                            locale: Qt.locale(host.language)
                            textFromValue: function(value) { return qsTr("%n day(s)", "", value) }
                            valueFromText: function(text) { return parseInt(text) || 1 }
                            Accessible.name: qsTr("Keep alarm records")
                        }
                        Button {
                            text: qsTr("Apply")
                            onClicked: if (alarmManager.updateReserveTime(reserveBox.value)) pendingRequests++
                        }
                    }
                    Label { text: qsTr("Pause all alarms") }
                    RowLayout {
                        SpinBox {
                            id: pauseBox
                            Layout.fillWidth: true
                            from: 1
                            to: 1440
                            value: 15
                            editable: true
                            locale: Qt.locale(host.language)
                            textFromValue: function(value) { return qsTr("%n minute(s)", "", value) }
                            valueFromText: function(text) { return parseInt(text) || 1 }
                            Accessible.name: qsTr("Pause all alarms")
                        }
                        Button {
                            text: qsTr("Pause")
                            onClicked: {
                                window.pauseMinutes = pauseBox.value
                                if (alarmManager.toggleAllAlarm(false, pauseBox.value))
                                    pendingRequests++
                            }
                        }
                        Button {
                            text: qsTr("Resume")
                            onClicked: {
                                window.pauseMinutes = 0
                                if (alarmManager.toggleAllAlarm(true, 0))
                                    pendingRequests++
                            }
                        }
                    }
                }
            }

            GroupBox {
                title: qsTr("Alarm sound")
                Layout.fillWidth: true
                GridLayout {
                    anchors.fill: parent
                    columns: 2
                    Label {
                        Layout.columnSpan: 2
                        Layout.fillWidth: true
                        elide: Text.ElideRight
                        text: soundLoader.item && soundLoader.item.current !== ""
                              ? qsTr("Playing %1").arg(soundLoader.item.current)
                              : qsTr("%n sound(s) on the server", "", soundNames.length)
                    }
                    Switch { id: muteSwitch; objectName: "muteSwitch"; text: qsTr("Mute") }
                    Button {
                        text: qsTr("Stop")
                        enabled: soundLoader.item !== null && soundLoader.item.current !== ""
                        onClicked: soundLoader.item.stop()
                    }
                }
            }

            GroupBox {
                title: qsTr("Triggered alarms and notifications")
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
                            required property string nodeId
                            required property int type
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
                                Label {
                                    text: time + "  " + (type < 0 ? title : [qsTr("Go to E-Map"), qsTr("Popup window"),
                                                                              qsTr("Sound the alarm")][type] || "")
                                    font.bold: true
                                    width: parent.width
                                    elide: Text.ElideRight
                                }
                                Label { text: detail; font.pixelSize: 11; width: parent.width; wrapMode: Text.Wrap }
                            }
                        }
                    }
                    Flow {
                        Layout.fillWidth: true
                        spacing: 6
                        Button {
                            text: qsTr("Close alarm tabs")
                            enabled: firedModel.count > 0 && firedNodes("alarm").length > 0
                            onClicked: alarmManager.closeAlarmTab(firedNodes("alarm"))
                        }
                        Button {
                            text: qsTr("Close map tabs")
                            enabled: firedModel.count > 0 && firedNodes("map").length > 0
                            onClicked: alarmManager.closeEMapTab(firedNodes("map"))
                        }
                        Button {
                            text: qsTr("Clear")
                            enabled: firedModel.count > 0
                            onClicked: { firedModel.clear(); alarmManager.closeAlarmNotification() }
                        }
                    }
                }
            }
        }
    }

    Dialog {
        id: confirmDelete
        anchors.centerIn: parent
        width: 420
        modal: true
        title: qsTr("Delete alarms")
        standardButtons: Dialog.Yes | Dialog.No
        onOpened: confirmText.forceActiveFocus()
        Label {
            id: confirmText
            text: qsTr("Delete %n selected alarm(s)?", "", selectionCount)
            Keys.onReturnPressed: confirmDelete.accept()
            Keys.onEnterPressed: confirmDelete.accept()
        }
        onAccepted: {
            if (alarmManager.deleteAlarms(selectedRows()))
                pendingRequests++
        }
    }

    RuleEditor {
        id: editor
        objectName: "ruleEditor"
        anchors.centerIn: parent
        soundNames: window.soundNames
        onSubmitted: pendingRequests++
        onClosed: alarmListView.forceActiveFocus()
    }

    // Qt Multimedia is loaded with the first alarm sound, not with the page.
    Loader {
        id: soundLoader
        active: false
        source: "SoundPlayer.qml"
        onLoaded: item.muted = Qt.binding(function() { return muteSwitch.checked })
    }
}

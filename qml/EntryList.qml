// One of the rule's two lists in the editor: the entries with their texts, each removable, and a row to
// add an entry of any kind the site's rules hold, on a device picked from the site. Entries are
// {"xml", "kind", "label", "isNew"}; "xml" is kept exactly as the server sent it.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

GroupBox {
    id: list

    property string tag: "TriggerList"   // or "ActionList"
    property var kinds: []                 // [{ "kind", "picker", "field", "text" }]
    property var pickers: ({})             // picker name -> [{ "id", "name" }]
    readonly property alias entries: entryModel
    property bool changed: false

    signal testRequested(string xml)

    function reset(entryList) {
        entryModel.clear()
        for (var i = 0; i < entryList.length; ++i)
            entryModel.append(entryList[i])
        changed = false
    }
    function xmlList() {
        var texts = []
        for (var i = 0; i < entryModel.count; ++i)
            texts.push(entryModel.get(i).xml)
        return texts
    }
    function remove(index) {
        entryModel.remove(index)
        changed = true
    }
    // Adds an entry of the kind on the device; false when the site's rules hold no such kind.
    function add(kind, device, deviceName, kindText, text) {
        var xml = ruleEntries.make(tag, kind, device, text || "")
        if (xml === "")
            return false
        entryModel.append({ "xml": xml, "kind": kind, "isNew": true,
                            "label": kindText + (deviceName !== "" ? " - " + deviceName : "") + (text ? " - " + text : "") })
        changed = true
        return true
    }

    ListModel { id: entryModel }

    ColumnLayout {
        anchors.fill: parent
        spacing: 2

        Label {
            visible: entryModel.count === 0
            text: list.tag === "TriggerList" ? qsTr("No trigger yet") : qsTr("No action yet")
            color: palette.placeholderText
        }
        Repeater {
            model: entryModel
            delegate: RowLayout {
                required property int index
                required property string label
                required property string kind
                required property string xml
                required property bool isNew
                Layout.fillWidth: true
                Label {
                    Layout.fillWidth: true
                    text: (isNew ? "+ " : "") + label
                    wrapMode: Text.Wrap
                    font.italic: isNew
                }
                Button {
                    visible: kind === "HTTP"
                    text: qsTr("Send test request")
                    onClicked: list.testRequested(xml)
                }
                Button {
                    text: qsTr("Remove")
                    Accessible.name: qsTr("Remove") + " " + label
                    onClicked: list.remove(index)
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            ComboBox {
                id: kindBox
                Layout.preferredWidth: 280
                model: list.kinds
                textRole: "text"
                valueRole: "kind"
                Accessible.name: list.tag === "TriggerList" ? qsTr("Trigger kind") : qsTr("Action kind")
            }
            ComboBox {
                id: deviceBox
                readonly property var kind: kindBox.currentIndex >= 0 && list.kinds.length > kindBox.currentIndex
                                            ? list.kinds[kindBox.currentIndex] : ({})
                readonly property string picker: kind.picker || ""
                visible: picker !== ""
                Layout.fillWidth: true
                model: list.pickers[picker] || []
                textRole: "name"
                valueRole: "id"
                Accessible.name: qsTr("Device")
            }
            // Whom a mail or message goes to, the address of a request, the path of a program, which input.
            TextField {
                id: fieldText
                visible: !!deviceBox.kind.field
                Layout.fillWidth: true
                selectByMouse: true
                placeholderText: deviceBox.kind.field === "Index" ? qsTr("Number of the input, output or window")
                                                                  : qsTr("Recipient, number, address or path (empty: as in the site's rules)")
                Accessible.name: placeholderText
            }
            Button {
                text: qsTr("Add")
                enabled: kindBox.currentIndex >= 0
                onClicked: list.add(kindBox.currentValue, deviceBox.visible ? String(deviceBox.currentValue) : "",
                                    deviceBox.visible ? deviceBox.currentText : "", kindBox.currentText,
                                    fieldText.visible ? fieldText.text.trim() : "")
            }
        }
    }
}

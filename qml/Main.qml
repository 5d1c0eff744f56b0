import QtQuick
import QtQuick.Controls
ApplicationWindow { visible: true; width: 1280; height: 800
  ListView { objectName: "alarmListView"; anchors.fill: parent; model: alarmList
    delegate: Text { text: model.nameRole } }
  TextField { objectName: "searchField" }
}

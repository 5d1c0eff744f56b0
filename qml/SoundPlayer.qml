// Plays an alarm sound from the plug-in's local store until stopped. The player itself is made only when
// there is an audio output to play on.
import QtQuick
import QtMultimedia

Item {
    id: player

    property bool muted: false
    property string current: ""
    readonly property bool hasOutput: devices.audioOutputs.length > 0

    function play(url, name) {
        if (!mediaLoader.item)
            return
        mediaLoader.item.source = url
        mediaLoader.item.play()
        current = name
    }
    function stop() {
        if (mediaLoader.item)
            mediaLoader.item.stop()
        current = ""
    }

    MediaDevices { id: devices }
    Loader {
        id: mediaLoader
        active: player.hasOutput
        sourceComponent: MediaPlayer {
            loops: MediaPlayer.Infinite
            audioOutput: AudioOutput { muted: player.muted }
            onErrorOccurred: function(error, errorString) {
                window.note(qsTr("The alarm sound cannot be played: %1").arg(errorString))
                player.current = ""
            }
        }
    }
}

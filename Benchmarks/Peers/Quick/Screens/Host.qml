import QtQuick

// A screen of the host's own, so that fonts, text and scene graph are warm before the paywall opens.
Rectangle {
    width: 375
    height: 800
    color: "#f0f0f0"

    Text {
        anchors.centerIn: parent
        text: "Host application"
        font.family: "Liberation Sans"
        font.pixelSize: 17
    }
    Text {
        x: 16
        y: 40
        text: "Go Pro"
        font.family: "Liberation Sans"
        font.pixelSize: 17
        font.bold: true
    }
}

import QtQuick

Rectangle {
    id: page

    property string assets
    property var shelves: []
    property int drifts: 0
    property alias offset: list.contentY
    readonly property real largestOffset: list.contentHeight - list.height

    width: 375
    height: 800
    color: "white"

    Flickable {
        id: list

        width: page.width
        height: page.height - 64
        contentWidth: width
        contentHeight: column.height
        clip: true

        Column {
            id: column

            Repeater {
                model: page.shelves

                Shelf {
                    required property var modelData

                    info: modelData
                    assets: page.assets
                    drifts: page.drifts
                }
            }
        }
    }

    Rectangle {
        y: page.height - 64
        width: page.width
        height: 64
        color: "#0a8f92"

        Text {
            anchors.centerIn: parent
            text: "Choose Your Plan"
            font.family: "Liberation Sans"
            font.pixelSize: 18
            font.bold: true
            font.letterSpacing: 2
            color: "white"
        }
    }

    Image {
        x: 16
        y: 16
        width: 24
        height: 24
        source: page.assets + "close.png"
    }
}

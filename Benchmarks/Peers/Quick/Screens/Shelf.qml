import QtQuick

Item {
    id: shelf

    property string assets
    property var info
    property int drifts: 0
    required property int index

    readonly property real overhang: width - info.stripWidth

    width: 375
    height: info.height

    Item {
        width: parent.width
        height: shelf.info.tileHeight
        clip: true

        Row {
            // Every other strip comes from its end.
            x: 16 + (shelf.index % 2 ? Math.min(0, shelf.overhang + 5 * shelf.drifts)
                                     : Math.max(shelf.overhang, -5 * shelf.drifts))
            spacing: 16

            Repeater {
                model: 21

                Image {
                    width: shelf.info.tileWidth
                    height: shelf.info.tileHeight
                    source: shelf.assets + "tile_" + shelf.index + ".png"
                }
            }
        }
    }

    Column {
        y: shelf.info.tileHeight + 16
        width: parent.width
        spacing: 16

        Text {
            x: 25
            width: parent.width - 50
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: shelf.info.title
            font.family: "Liberation Sans"
            font.pixelSize: 20
            font.bold: true
            color: "#1a1a1a"
        }
        Text {
            x: (parent.width - 300) / 2
            width: 300
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: shelf.info.subtitle
            lineHeight: 1.2
            font.family: "Liberation Sans"
            font.pixelSize: 16
            font.letterSpacing: 0.2
            color: "#6b6b70"
        }
    }
}

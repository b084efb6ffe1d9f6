import QtQuick

Item {
    id: card

    property var plan
    property bool selected: false

    signal clicked

    implicitHeight: Math.max(90, texts.implicitHeight + 32)

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "#f4f4f6"
    }

    Column {
        id: texts

        x: 14
        width: card.width - 28 - 24 - 16
        spacing: 8
        anchors.verticalCenter: parent.verticalCenter

        Row {
            spacing: 8

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: card.plan.title
                font.family: "Liberation Sans"
                font.pixelSize: 17
                color: "#1a1a1a"
            }
            Rectangle {
                visible: card.plan.trial
                width: capsule.implicitWidth + 12
                height: capsule.implicitHeight + 12
                radius: height / 2
                color: "#d9f2f1"

                Text {
                    id: capsule

                    x: 6
                    y: 6
                    text: "7 Day Free Trial"
                    font.family: "Liberation Sans"
                    font.pixelSize: 11
                    font.bold: true
                    font.capitalization: Font.AllUppercase
                    color: "#0a7f80"
                }
            }
        }

        Text {
            width: parent.width
            wrapMode: Text.Wrap
            textFormat: Text.StyledText
            // Styled text knows sizes in steps only; this one is 19 pixels.
            text: (card.plan.compare ? "<b><s><font size=\"4\" color=\"#1a1a1a\">" + card.plan.compare + "</font></s></b>&nbsp;" : "")
                + "<b><font size=\"4\" color=\"#1a1a1a\">" + card.plan.price + "</font></b>" + card.plan.rest
            font.family: "Liberation Sans"
            font.pixelSize: 16
            color: "#6b6b70"
        }
    }

    Item {
        width: 24
        height: 24
        anchors {
            right: parent.right
            rightMargin: 14
            verticalCenter: parent.verticalCenter
        }

        Rectangle {
            anchors.fill: parent
            radius: 12
            color: "white"
            border.width: 2
            border.color: "#c9c9cf"
            visible: !card.selected
        }
        Rectangle {
            anchors.fill: parent
            radius: 12
            color: "transparent"
            border.width: 2
            border.color: "#0a8f92"
            visible: card.selected
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: 3
            radius: 9
            color: "#0a8f92"
            visible: card.selected
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        radius: 7
        color: "transparent"
        border.width: 2
        border.color: "#0a8f92"
        opacity: card.selected ? 1 : 0
    }

    Rectangle {
        visible: card.plan.badge !== ""
        anchors {
            right: parent.right
            rightMargin: 16
            verticalCenter: parent.top
        }
        width: badge.implicitWidth + 8
        height: badge.implicitHeight + 4
        radius: 2
        color: "#0a8f92"

        Text {
            id: badge

            x: 4
            y: 2
            text: card.plan.badge
            font.family: "Liberation Sans"
            font.pixelSize: 10
            font.bold: true
            font.capitalization: Font.AllUppercase
            color: "white"
        }
    }

    TapHandler { onTapped: card.clicked() }
}

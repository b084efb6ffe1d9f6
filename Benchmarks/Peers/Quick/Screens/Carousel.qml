import QtQuick

Item {
    id: carousel

    property string assets
    property var pages
    property int currentPage: 0
    property bool running: true
    // The other pages' pictures are decoded a second after the screen has opened.
    property bool showsAllPages: false

    height: 254
    clip: true

    Row {
        x: -carousel.currentPage * carousel.width
        Behavior on x {
            NumberAnimation {
                duration: 2000
                easing.type: Easing.InOutQuad
            }
        }

        Repeater {
            model: carousel.pages

            Image {
                required property var modelData
                required property int index

                width: carousel.width
                height: carousel.height
                fillMode: Image.PreserveAspectCrop
                source: index === 0 || carousel.showsAllPages ? carousel.assets + modelData.image : ""
            }
        }
    }

    Text {
        id: title

        x: 10
        width: carousel.width - 10 - 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 18
        text: carousel.pages[carousel.currentPage].title
        wrapMode: Text.Wrap
        font.family: "Liberation Sans"
        font.pixelSize: 18
        font.bold: true
        color: "white"

        Behavior on text {
            SequentialAnimation {
                NumberAnimation {
                    target: title
                    property: "opacity"
                    to: 0
                    duration: 350
                    easing.type: Easing.InQuad
                }
                PropertyAction {}
                PauseAnimation { duration: 650 }
                NumberAnimation {
                    target: title
                    property: "opacity"
                    to: 1
                    duration: 350
                    easing.type: Easing.OutQuad
                }
            }
        }
    }

    Row {
        anchors {
            right: parent.right
            rightMargin: 30
            bottom: parent.bottom
            bottomMargin: 30
        }

        Repeater {
            model: carousel.pages.length

            Item {
                id: dot

                required property int index

                width: 10
                height: 10

                Rectangle {
                    anchors.centerIn: parent
                    width: 7
                    height: 7
                    radius: 3.5
                    color: "white"
                    opacity: dot.index === carousel.currentPage ? 1 : 0.35
                }
                TapHandler { onTapped: carousel.currentPage = dot.index }
            }
        }
    }

    Timer {
        interval: 1000
        running: carousel.running
        onTriggered: carousel.showsAllPages = true
    }
    Timer {
        interval: 5000
        repeat: true
        running: carousel.running
        onTriggered: carousel.currentPage = (carousel.currentPage + 1) % carousel.pages.length
    }
}

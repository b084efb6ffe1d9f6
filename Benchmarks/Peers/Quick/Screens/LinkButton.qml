import QtQuick

Text {
    id: link

    signal clicked

    font.family: "Liberation Sans"
    font.pixelSize: 14
    font.bold: true
    color: "#6b6b70"

    TapHandler { onTapped: link.clicked() }
}

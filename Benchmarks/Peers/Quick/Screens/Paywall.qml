import QtQuick

Rectangle {
    id: root

    property string assets
    property bool running: true
    property int selectedIndex: 0
    readonly property bool regular: height >= 700
    readonly property var plan: plans[selectedIndex]
    readonly property var plans: [
        { title: "Annually", compare: "$143.88", price: "$99.99", rest: " per year ($8.33/month).", badge: "Save 45%", trial: true },
        { title: "Monthly", compare: "", price: "$14.99", rest: " per month", badge: "", trial: false }
    ]

    signal event(string name)

    width: 375
    height: 800
    color: "white"

    Flickable {
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.height + column.y

        Column {
            id: column

            y: root.regular ? -10 : 0
            width: root.width
            spacing: 8
            bottomPadding: 80

            Carousel {
                width: root.width
                assets: root.assets
                running: root.running
                pages: [
                    { image: "header_a.png", title: "Endless premium templates, updated daily." },
                    { image: "header_b.png", title: "Thousands of photos, videos, graphics and fonts." },
                    { image: "header_c.png", title: "Remove photo backgrounds with one tap." },
                    { image: "header_d.png", title: "Grow your business with Custom Domains and Link in Bio." }
                ]
            }

            Item {
                width: root.width
                height: 31

                Image {
                    y: 5
                    width: 208
                    height: 26
                    anchors.horizontalCenter: parent.horizontalCenter
                    source: root.assets + "logo.png"
                }
            }

            Item {
                width: root.width
                height: 24

                Image {
                    x: 6
                    width: 24
                    height: 24
                    source: root.assets + "diamond.png"
                }
                Text {
                    x: 44
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Compare Plans: Free vs Pro"
                    font.family: "Liberation Sans"
                    font.pixelSize: 16
                    color: "#1a1a1a"
                }
                Image {
                    anchors {
                        right: parent.right
                        rightMargin: 16
                        verticalCenter: parent.verticalCenter
                    }
                    width: 10
                    height: 10
                    source: root.assets + "chevron.png"
                }
                TapHandler { onTapped: root.event("comparePlans") }
            }

            Column {
                x: 16
                width: root.width - 32
                spacing: 16
                bottomPadding: root.regular ? 10 : 0

                Repeater {
                    model: root.plans

                    PlanCard {
                        required property var modelData
                        required property int index

                        width: parent.width
                        plan: modelData
                        selected: index === root.selectedIndex
                        onClicked: root.selectedIndex = index
                    }
                }
            }

            Item {
                width: root.width
                height: 12 + 56 - 8 + (root.regular ? 5 : 0)

                Rectangle {
                    x: 16
                    y: 12
                    width: root.width - 32
                    height: 56
                    radius: 28
                    color: "#0a8f92"

                    Text {
                        anchors.centerIn: parent
                        text: root.plan.trial ? "Start Your Free Trial" : "Subscribe Now"
                        font.family: "Liberation Sans"
                        font.pixelSize: 17
                        font.bold: true
                        color: "white"
                    }
                    TapHandler { onTapped: root.event("purchase") }
                }
            }

            Text {
                x: 16
                width: root.width - 32
                topPadding: 8
                bottomPadding: 8
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                text: root.plan.trial
                    ? "Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the trial ends."
                    : "Payment will be made immediately."
                font.family: "Liberation Sans"
                font.pixelSize: 13
                color: "#6b6b70"
            }

            Item {
                x: 16
                width: root.width - 32
                height: 16 + (root.regular ? 10 : 0)

                LinkButton {
                    id: terms

                    text: "Terms of Service"
                    onClicked: root.event("termsOfService")
                }
                LinkButton {
                    x: (terms.width + restore.x) / 2 - width / 2
                    text: "Privacy Policy"
                    onClicked: root.event("privacyPolicy")
                }
                LinkButton {
                    id: restore

                    x: parent.width - width
                    text: "Restore Purchases"
                    onClicked: root.event("restorePurchases")
                }
            }
        }
    }

    Image {
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
        }
        height: 80
        source: root.assets + "terms_gradient.png"
    }

    Item {
        anchors {
            right: parent.right
            top: parent.top
        }
        width: 44
        height: 44

        Image {
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -4
            anchors.verticalCenterOffset: 4
            width: 24
            height: 24
            source: root.assets + "close.png"
        }
        TapHandler { onTapped: root.event("cancel") }
    }
}

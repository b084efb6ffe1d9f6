import ProUpsells
import QtQuick

Window {
    id: shop
    title: "Shop"
    width: 375
    height: 800
    visible: true
    color: "#EFE7DA"

    Text {
        anchors.centerIn: parent
        text: "Upgrade to Pro"
        TapHandler { onTapped: paywall.open = true }
    }

    Paywall {
        id: paywall
        anchors.fill: parent
        focus: true
        visible: open
        open: false
        options: [
            { sku: "pro.yearly", period: "yearly", price: "$99.99", monthlyPrice: "$8.33", trial: "1 week" },
            { sku: "pro.monthly", period: "monthly", price: "$14.99" }
        ]
        onPurchaseRequested: sku => { console.log("bought", sku); open = false }
        onRestoreRequested: console.log("restore")
        onClosed: reason => console.log("closed:", ["purchased", "cancelled", "dismissed"][reason])
    }
}

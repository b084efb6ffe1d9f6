// A scene with a paywall between two fields.
#pragma once

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "Backends/QtQuick/PaywallItem.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Tests/Qt/Events.hpp"

namespace proupsells::tests {

inline constexpr const char* usualPaywall = R"(
    import QtQuick
    import ProUpsells
    Item {
        width: 375; height: 900
        property var told: []
        TextInput { objectName: "before"; activeFocusOnTab: true; width: 100; height: 20 }
        Paywall {
            objectName: "paywall"
            y: 50; width: 375; height: 800
            options: [
                { sku: "pro.monthly", period: "monthly", price: "$14.99" },
                { sku: "pro.yearly", period: "yearly", price: "$99.99", monthlyPrice: "$8.33", trial: "1 week" }
            ]
            onPurchaseRequested: sku => { told.push("buy " + sku); open = false }
            onRestoreRequested: told.push("restore")
            onClosed: reason => told.push("closed " + reason)
        }
        TextInput { objectName: "after"; activeFocusOnTab: true; y: 860; width: 100; height: 20 }
    })";

class Items : public testing::Test {
protected:
    void show(const char* qml = usualPaywall) {
        QQmlComponent component(&engine);
        component.setData(qml, {});
        root.reset(qobject_cast<QQuickItem*>(component.create()));
        ASSERT_TRUE(root) << component.errorString().toStdString();
        root->setParentItem(window.contentItem());
        paywall = root->findChild<qtquick::PaywallItem*>("paywall");
        window.resize(375, 900);
        window.show();
        window.requestActivate();
        settle();
    }

    void click(QPointF at) {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, window.mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
            QCoreApplication::sendEvent(&window, &event);
        }
    }
    // The middle of a control, in the scene.
    QPointF placeOf(std::string_view identifier) {
        const accessibility::SemanticNode screen = paywall->uiWindow().semanticTree();
        const accessibility::SemanticNode* node = accessibility::findByIdentifier(screen, identifier);
        EXPECT_NE(node, nullptr) << identifier;
        return node ? paywall->mapToScene({node->frame.midX(), node->frame.midY()}) : QPointF();
    }
    void clickOn(std::string_view identifier) {
        click(placeOf(identifier));
        settle();
    }
    void pressKey(int key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(&window, &event);
    }
    std::vector<std::string> told() const {
        std::vector<std::string> lines;
        for (const QVariant& line : root->property("told").toList()) lines.push_back(line.toString().toStdString());
        return lines;
    }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> root;
    QPointer<qtquick::PaywallItem> paywall;
};

} // namespace proupsells::tests

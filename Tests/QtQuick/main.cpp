// Items need the application object of an ordinary host around all tests, and a scene that no graphics card paints.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQuickWindow>

#include "Backends/QtQuick/Install.hpp"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    proupsells::qtquick::install();
    return RUN_ALL_TESTS();
}

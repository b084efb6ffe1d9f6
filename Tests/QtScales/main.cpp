// Four displays of different scales side by side, and a scene that no graphics card paints.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>

#include "Backends/QtQuick/Install.hpp"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" PROUPSELLS_DISPLAYS);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    proupsells::qtquick::install();
    return RUN_ALL_TESTS();
}

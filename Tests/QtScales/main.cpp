// Four displays of different scales side by side, and a scene that no graphics card paints.
#include <gtest/gtest.h>

#include <QApplication>
#include <QQuickWindow>

#include "Backends/QtQuick/Install.hpp"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" PROUPSELLS_DISPLAYS);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    proupsells::qtquick::install();
    return RUN_ALL_TESTS();
}

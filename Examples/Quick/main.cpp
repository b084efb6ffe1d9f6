// The paywall in a Qt Quick scene: all of the shop is in Shop.qml.

#include <ProUpsells/QtQuick.hpp>
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    proupsells::qtquick::install();
    QQmlApplicationEngine engine(QUrl("qrc:/Shop.qml"));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}

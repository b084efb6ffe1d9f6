#include "Tests/Qt/SignalListener.hpp"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace proupsells::tests {

namespace {

QString textOf(const QVariant& value) {
    if (value.canConvert<QDBusVariant>()) return textOf(value.value<QDBusVariant>().variant());
    if (!value.canConvert<QDBusArgument>()) return value.toString();
    const auto object = value.value<QDBusArgument>();
    QString program;
    QDBusObjectPath path;
    object.beginStructure();
    object >> program >> path;
    object.endStructure();
    return path.path();
}

} // namespace

SignalListener::SignalListener(const QString& interface) {
    connect(&m_server, &QDBusServer::newConnection, this, [this, interface](QDBusConnection client) {
        client.connect({}, {}, interface, {}, this, SLOT(hear(QDBusMessage)));
        m_client = client;
    });
}

void SignalListener::hear(const QDBusMessage& message) {
    QStringList arguments;
    for (const QVariant& argument : message.arguments()) arguments.append(textOf(argument));
    const QString text = message.path() + ' ' + message.member() + '(' + message.signature() + "): " + arguments.join(", ");
    heard.push_back(text.toStdString());
}

} // namespace proupsells::tests

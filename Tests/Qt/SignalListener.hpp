// Hears what a program says over D-Bus, without a bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QObject>
#include <optional>
#include <string>
#include <vector>

namespace proupsells::tests {

// One program connects itself to it.
class SignalListener final : public QObject {
    Q_OBJECT

public:
    // Of the signals of this interface.
    explicit SignalListener(const QString& interface);

    QString address() const { return m_server.address(); }
    bool isConnected() const { return m_client.has_value(); }
    // "path Member(signature): argument, argument"; what a variant holds as it is, an object by its path.
    std::vector<std::string> heard;

public slots:
    void hear(const QDBusMessage& message);

private:
    QDBusServer m_server;
    std::optional<QDBusConnection> m_client;
};

} // namespace proupsells::tests

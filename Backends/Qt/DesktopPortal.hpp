// Where a desktop's settings come from.
#pragma once

#ifdef PROUPSELLS_HAS_DBUS
#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#endif

namespace proupsells::qtbackend {

class DesktopSettings;

// Keeps the settings as the portal of the session's bus says, as long as they live. Does nothing where there is no bus.
void followPortal(DesktopSettings& settings);

#ifdef PROUPSELLS_HAS_DBUS

// Whether the session names a bus (https://dbus.freedesktop.org/doc/dbus-specification.html). Where it names none, the library of
// D-Bus would start one.
bool hasSessionBus();

// Asks a portal without waiting for it, and hears of every change.
class DesktopPortal final : public QObject {
    Q_OBJECT

public:
    // Owned by the settings. The service is empty on a connection that has no bus but the portal at its other end.
    DesktopPortal(const QDBusConnection& connection, const QString& service, DesktopSettings& settings);

private slots:
    void hearChange(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void askForAll();
    void ask(const QString& method, const char* group, const char* key);

    QDBusConnection m_connection;
    QString m_service;
    DesktopSettings& m_settings;
};

#endif

} // namespace proupsells::qtbackend

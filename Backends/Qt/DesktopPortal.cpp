#include "Backends/Qt/DesktopPortal.hpp"

#ifdef PROUPSELLS_HAS_DBUS
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QMetaType>
#include <algorithm>

#include "Backends/Qt/DesktopSettings.hpp"
#endif

namespace proupsells::qtbackend {

#ifdef PROUPSELLS_HAS_DBUS

namespace {

const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString read = QStringLiteral("Read"), readOne = QStringLiteral("ReadOne");

constexpr struct {
    const char *group, *key;
} followed[] = {
    {"org.freedesktop.appearance", "color-scheme"},       {"org.freedesktop.appearance", "contrast"},
    {"org.freedesktop.appearance", "reduced-motion"},     {"org.gnome.desktop.a11y.interface", "high-contrast"},
    {"org.gnome.desktop.interface", "enable-animations"}, {"org.gnome.desktop.interface", "text-scaling-factor"},
};

// Some answers are wrapped twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

bool hasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") || QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

DesktopPortal::DesktopPortal(const QDBusConnection& connection, const QString& service, DesktopSettings& settings)
    : QObject(&settings), m_connection(connection), m_service(service), m_settings(settings) {
    // The slot's types are found by their names; this one may have none before the connection's own thread has given it one.
    qRegisterMetaType<QDBusVariant>();
    m_connection.connect(m_service, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                         SLOT(hearChange(QString, QString, QDBusVariant)));
    askForAll();
    if (m_service.isEmpty()) return;
    auto* const watcher = new QDBusServiceWatcher(m_service, m_connection, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &DesktopPortal::askForAll);
}

void DesktopPortal::hearChange(const QString& group, const QString& key, const QDBusVariant& value) {
    const auto isThis = [&](const auto& one) { return group == QLatin1String(one.group) && key == QLatin1String(one.key); };
    if (std::any_of(std::begin(followed), std::end(followed), isThis)) m_settings.adopt(group, key, unwrapped(value.variant()));
}

void DesktopPortal::askForAll() {
    for (const auto& [group, key] : followed) ask(read, group, key);
}

// Portals have the one method, the other one, or both. A setting that they do not have is an error like any other.
void DesktopPortal::ask(const QString& method, const char* group, const char* key) {
    QDBusMessage question = QDBusMessage::createMethodCall(m_service, portalPath, settingsInterface, method);
    question << QString::fromLatin1(group) << QString::fromLatin1(key);
    auto* const watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, method, group, key](QDBusPendingCallWatcher* answered) {
        answered->deleteLater();
        const QDBusMessage answer = answered->reply();
        if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty())
            m_settings.adopt(QString::fromLatin1(group), QString::fromLatin1(key), unwrapped(answer.arguments().constFirst()));
        else if (method == read && answered->error().type() == QDBusError::UnknownMethod)
            ask(readOne, group, key);
    });
}

void followPortal(DesktopSettings& settings) {
    if (!hasSessionBus()) return;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected()) new DesktopPortal(bus, QStringLiteral("org.freedesktop.portal.Desktop"), settings);
}

#else

void followPortal(DesktopSettings&) {}

#endif

} // namespace proupsells::qtbackend

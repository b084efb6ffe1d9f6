#include "Backends/Qt/AtspiSignals.hpp"

#include <QtGui/qaccessible.h>

#ifdef PROUPSELLS_HAS_DBUS
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#endif

namespace proupsells::qtbackend {

#ifdef PROUPSELLS_HAS_DBUS

// An object of a program on the bus.
struct ObjectReference {
    QString program;
    QDBusObjectPath path;
};

// NOLINTBEGIN(misc-use-internal-linkage): found by their argument.
QDBusArgument& operator<<(QDBusArgument& argument, const ObjectReference& reference) {
    argument.beginStructure();
    argument << reference.program << reference.path;
    argument.endStructure();
    return argument;
}

// Qt wants to have it; nobody tells us of objects.
const QDBusArgument& operator>>(const QDBusArgument& argument, ObjectReference&) { return argument; }
// NOLINTEND(misc-use-internal-linkage)

namespace {

// An event of AT-SPI: a signal with a kind, what it is about, two numbers, of which nobody here has use for the second, and a
// value.
struct Signal {
    QAccessibleInterface* source;
    QString name;
    QString detail;
    int first;
    QVariant value;
};

class Bus {
public:
    bool isThere() const { return m_connection.isConnected(); }

    ObjectReference reference(QAccessibleInterface* object) const {
        return {m_connection.baseService(), QDBusObjectPath(path(object))};
    }

    void send(const Signal& signal) const {
        static const QString objectEvents = QStringLiteral("org.a11y.atspi.Event.Object");
        static const QDBusObjectPath application(QStringLiteral("/org/a11y/atspi/accessible/root"));
        QDBusMessage message = QDBusMessage::createSignal(path(signal.source), objectEvents, signal.name);
        message << signal.detail << signal.first << 0 << QVariant::fromValue(QDBusVariant(signal.value))
                << QVariant::fromValue(ObjectReference{m_connection.baseService(), application});
        m_connection.send(message);
    }

private:
    // As Qt's bridge names its objects.
    static QString path(QAccessibleInterface* object) {
        return QStringLiteral("/org/a11y/atspi/accessible/") + QString::number(QAccessible::uniqueId(object));
    }

    // Qt's bridge has given it this name.
    QDBusConnection m_connection{QStringLiteral("a11y")};
};

void sendState(const Bus& bus, QAccessibleInterface* source, const QString& state, bool isOn) {
    bus.send({source, QStringLiteral("StateChanged"), state, isOn ? 1 : 0, QVariant::fromValue(bus.reference(source))});
}

bool sendState(const Bus& bus, QAccessibleInterface* source, const QAccessible::State& changed) {
    const QAccessible::State state = source->state();
    if (changed.expanded) {
        sendState(bus, source, QStringLiteral("expanded"), state.expanded);
        sendState(bus, source, QStringLiteral("collapsed"), state.collapsed);
        return true;
    }
    if (changed.busy) {
        sendState(bus, source, QStringLiteral("busy"), state.busy);
        return true;
    }
    if (changed.offscreen) {
        sendState(bus, source, QStringLiteral("visible"), !state.offscreen);
        sendState(bus, source, QStringLiteral("showing"), !state.offscreen);
        return true;
    }
    return false;
}

void sendProperty(const Bus& bus, QAccessibleInterface* source, const QString& property, const QVariant& value) {
    bus.send({source, QStringLiteral("PropertyChange"), property, 0, value});
}

// Absent parents have nobody who would listen.
void sendChild(const Bus& bus, QAccessibleInterface* child, const QString& change) {
    QAccessibleInterface* const parent = child->parent();
    if (!parent) return;
    bus.send({parent, QStringLiteral("ChildrenChanged"), change, parent->indexOfChild(child),
              QVariant::fromValue(bus.reference(child))});
}

// All go, and come back in their order.
void sendOrder(const Bus& bus, QAccessibleInterface* parent) {
    for (int index = 0; index < parent->childCount(); ++index) sendChild(bus, parent->child(index), QStringLiteral("remove"));
    for (int index = 0; index < parent->childCount(); ++index) sendChild(bus, parent->child(index), QStringLiteral("add"));
}

} // namespace

bool tellOverAtspi(QAccessibleEvent& event) {
    [[maybe_unused]] static const QMetaType known = qDBusRegisterMetaType<ObjectReference>();
    const Bus bus;
    QAccessibleInterface* const source = event.accessibleInterface();
    if (!bus.isThere() || !source) return false;
    switch (event.type()) {
    case QAccessible::NameChanged:
        sendProperty(bus, source, QStringLiteral("accessible-name"), source->text(QAccessible::Name));
        return true;
    case QAccessible::DescriptionChanged:
        sendProperty(bus, source, QStringLiteral("accessible-description"), source->text(QAccessible::Description));
        return true;
    case QAccessible::ValueChanged:
        sendProperty(bus, source, QStringLiteral("accessible-value"), source->valueInterface()->currentValue().toDouble());
        return true;
    case QAccessible::ObjectCreated: sendChild(bus, source, QStringLiteral("add")); return true;
    case QAccessible::ObjectDestroyed: sendChild(bus, source, QStringLiteral("remove")); return true;
    case QAccessible::ObjectReorder: sendOrder(bus, source); return true;
    case QAccessible::StateChanged: return sendState(bus, source, static_cast<QAccessibleStateChangeEvent&>(event).changedStates());
    default: return false;
    }
}

#else

bool tellOverAtspi(QAccessibleEvent&) { return false; }

#endif

} // namespace proupsells::qtbackend

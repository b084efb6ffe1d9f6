#include "Backends/QtQuick/ItemPlace.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqml.h>

namespace proupsells::qtquick {

namespace {

// The object behind `Accessible.` in QML, made where there was none; null where Qt does not know the type.
QObject* attachedAccessible(QQuickItem& item) {
    const QMetaObject* const type = QMetaType::fromName("QQuickAccessibleAttached*").metaObject();
    const QQmlAttachedPropertiesFunc function = type ? qmlAttachedPropertiesFunction(&item, type) : nullptr;
    return function ? qmlAttachedPropertiesObject(&item, function) : nullptr;
}

} // namespace

void offerToAssistiveTechnology(QQuickItem& item) {
    if (QObject* const attached = attachedAccessible(item)) attached->setProperty("role", QAccessible::Client);
}

QObject& ItemPlace::object() const { return m_item; }

QWindow* ItemPlace::window() const { return m_item.window(); }

// Items around that nobody has marked are not there for assistive technology.
QAccessibleInterface* ItemPlace::parent() const {
    for (QQuickItem* around = m_item.parentItem(); around; around = around->parentItem())
        if (QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(around)) return found;
    return m_item.window() ? QAccessible::queryAccessibleInterface(m_item.window()) : nullptr;
}

QString ItemPlace::name() const {
    QObject* const attached = attachedAccessible(m_item);
    return attached ? attached->property("name").toString() : QString();
}

QRect ItemPlace::frame() const {
    const QPointF topLeft = m_item.mapToGlobal(QPointF(0, 0));
    return {topLeft.toPoint(), m_item.size().toSize()};
}

bool ItemPlace::isVisible() const { return m_item.isVisible(); }

bool ItemPlace::hasFocus() const { return m_item.hasActiveFocus(); }

void ItemPlace::takeFocus() { m_item.forceActiveFocus(Qt::OtherFocusReason); }

geometry::Size ItemPlace::size() const { return {m_item.width(), m_item.height()}; }

double ItemPlace::scale() const { return m_item.window() ? m_item.window()->effectiveDevicePixelRatio() : 1; }

qtbackend::SystemTraits ItemPlace::systemTraits() const {
    return {QGuiApplication::palette(), QGuiApplication::layoutDirection(), false};
}

void ItemPlace::update(const QRegion&) { m_item.update(); }

void ItemPlace::showHand(bool shows) { shows ? m_item.setCursor(Qt::PointingHandCursor) : m_item.unsetCursor(); }

} // namespace proupsells::qtquick

// An item in its scene, and among Qt Quick's accessible objects.
#pragma once

#include "Backends/Qt/ScreenPlace.hpp"

class QQuickItem;

namespace proupsells::qtquick {

class ItemPlace final : public qtbackend::ScreenPlace {
public:
    explicit ItemPlace(QQuickItem& item) : m_item(item) {}

    QObject& object() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QString name() const override;
    QRect frame() const override;
    bool isVisible() const override;
    bool hasFocus() const override;
    void takeFocus() override;

    geometry::Size size() const override;
    double scale() const override;
    qtbackend::SystemTraits systemTraits() const override;
    void update(const QRegion& damage) override;
    void showHand(bool shows) override;

private:
    QQuickItem& m_item;
};

// Qt Quick's own tree leaves out items that nobody has marked: this does what `Accessible.role` in QML does. Without QML's types it
// does nothing.
void offerToAssistiveTechnology(QQuickItem& item);

} // namespace proupsells::qtquick

// The peer's QML files, compiled ahead of time into the program.
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QUrl>
#include <QVariantMap>
#include <memory>

#include "Common/Command.hpp"

namespace peers::quick {

enum class Carousel { running, still };

class Scene {
public:
    explicit Scene(const Command& command);

    QQmlEngine& engine() { return m_engine; }

    // A type stays in the engine's cache while a component of it is kept.
    std::unique_ptr<QQmlComponent> component(const char* file);
    std::unique_ptr<QQuickItem> make(const char* file, const QVariantMap& properties = {});
    // With the carousel at rest.
    std::unique_ptr<QQuickItem> makePaywall() { return makePaywall(*component(paywallFile)); }
    std::unique_ptr<QQuickItem> makePaywall(QQmlComponent& component);

    static constexpr const char* paywallFile = "Paywall.qml";
    static QUrl url(const char* file);
    QVariantMap paywallProperties(Carousel carousel) const;
    QVariantMap storeProperties() const;

private:
    QString m_assets;
    QQmlEngine m_engine;
};

} // namespace peers::quick

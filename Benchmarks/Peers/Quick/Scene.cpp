#include "Quick/Scene.hpp"

#include <QDir>

#include "Common/StorePage.hpp"

namespace peers::quick {
namespace {

std::unique_ptr<QQuickItem> create(QQmlComponent& component, const QVariantMap& properties) {
    auto* item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
    if (!item) fail(component.errorString().toStdString());
    return std::unique_ptr<QQuickItem>(item);
}

} // namespace

Scene::Scene(const Command& command)
    : m_assets(QUrl::fromLocalFile(QDir(QString::fromStdString(command.assets)).absolutePath()).toString() + "/") {}

QUrl Scene::url(const char* file) { return QUrl(QString("qrc:/Peer/Screens/") + file); }

std::unique_ptr<QQmlComponent> Scene::component(const char* file) { return std::make_unique<QQmlComponent>(&m_engine, url(file)); }

std::unique_ptr<QQuickItem> Scene::make(const char* file, const QVariantMap& properties) {
    return create(*component(file), properties);
}

std::unique_ptr<QQuickItem> Scene::makePaywall(QQmlComponent& component) {
    return create(component, paywallProperties(Carousel::still));
}

QVariantMap Scene::paywallProperties(Carousel carousel) const {
    return {{"assets", m_assets}, {"running", carousel == Carousel::running}};
}

QVariantMap Scene::storeProperties() const {
    QVariantList shelves;
    for (const store::Shelf& shelf : store::shelves)
        shelves << QVariantMap{
            {"height", shelf.fullHeight()},     {"tileWidth", shelf.tileWidth()}, {"tileHeight", shelf.tileHeight()},
            {"stripWidth", shelf.stripWidth()}, {"title", shelf.title},           {"subtitle", shelf.subtitle}};
    return {{"assets", m_assets}, {"shelves", shelves}};
}

} // namespace peers::quick

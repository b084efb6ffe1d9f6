// Two paywalls side by side, one light and one dark, in a brand of the shop's own.

#include <ProUpsells/QtWidgets.hpp>
#include <QApplication>
#include <QHBoxLayout>

#include "Shop/Shop.hpp"

using namespace proupsells;

namespace {

Theme evening() {
    Theme theme;
    theme.colors["marwickContentAccent"] = {.light = graphics::rgb(0x8C2F39), .dark = graphics::rgb(0xF0938A)};
    theme.colors["velaBackground"] = {.light = graphics::rgb(0xFFFBF5), .dark = graphics::rgb(0x17100F)};
    return theme;
}

void addPaywall(QWidget& shop, const std::shared_ptr<shop::Purchases>& purchases, graphics::ColorScheme scheme) {
    auto* const widget = new qtwidgets::ControllerWidget(shop::newPaywall(purchases), &shop);
    widget->setTraits({.colorScheme = scheme, .layoutDirection = {}, .reducesMotion = {}});
    shop.layout()->addWidget(widget);
    QObject::connect(widget, &qtwidgets::ControllerWidget::dismissalRequested, widget, [widget] {
        widget->setController(nullptr);
        widget->hide();
    });
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (!setTheme(evening())) return 1;
    const auto purchases = std::make_shared<shop::Purchases>();
    QWidget shop;
    shop.setWindowTitle("Shop");
    shop.setLayout(new QHBoxLayout);
    shop.resize(800, 820);
    addPaywall(shop, purchases, graphics::ColorScheme::light);
    addPaywall(shop, purchases, graphics::ColorScheme::dark);
    shop.show();
    return QApplication::exec();
}

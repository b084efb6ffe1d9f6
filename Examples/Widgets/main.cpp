// The paywall in a dialog of a Qt Widgets application.

#include <ProUpsells/QtWidgets.hpp>
#include <QApplication>
#include <QPushButton>

#include "Shop/Shop.hpp"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const auto purchases = std::make_shared<shop::Purchases>();

    QPushButton upgrade("Upgrade to Pro");
    QObject::connect(&upgrade, &QPushButton::clicked, [&] {
        auto* const dialog = new proupsells::qtwidgets::ControllerDialog(shop::newPaywall(purchases), &upgrade);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setWindowTitle("Pro");
        dialog->open();
    });
    upgrade.setWindowTitle("Shop");
    upgrade.show();
    return QApplication::exec();
}

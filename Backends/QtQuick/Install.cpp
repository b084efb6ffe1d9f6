#include "Backends/QtQuick/Install.hpp"

#include <QtQml/qqml.h>

#include "Backends/Qt/Install.hpp"
#include "Backends/QtQuick/PaywallItem.hpp"

namespace proupsells::qtquick {

void install() {
    qtbackend::install();
    static const int type = qmlRegisterType<PaywallItem>("ProUpsells", 1, 0, "Paywall");
    static_cast<void>(type);
}

} // namespace proupsells::qtquick

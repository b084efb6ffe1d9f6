// Fonts and pictures need Qt's application object around all tests, and mixed text the full bidirectional algorithm.
#include <gtest/gtest.h>

#include <QByteArray>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Qt/Application.hpp"

using namespace proupsells;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    // Nor does the display that somebody has named.
    qunsetenv("QT_QPA_PLATFORM");
    const qtbackend::Application application({.isHeadless = true});
    foundation::LocaleServices::setCurrent(std::make_shared<icubackend::IcuLocaleServices>());
    return RUN_ALL_TESTS();
}

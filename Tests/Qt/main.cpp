// Fonts and pictures need Qt's application object around all tests, and mixed text the full bidirectional algorithm.
#include <gtest/gtest.h>

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/Qt/Install.hpp"

using namespace proupsells;

// What one pixel of Qt's is on each display of a program that asks for this scale, or for none; the process has one application.
static int printScales(const char* scale) {
    {
        const qtbackend::Application application({.scale = *scale ? std::optional(std::atof(scale)) : std::nullopt});
        for (const QScreen* screen : QGuiApplication::screens()) std::cout << screen->devicePixelRatio() << '\n';
    }
    // Nobody leaves this out any more.
    qWarning("QStandardPaths: XDG_RUNTIME_DIR not set");
    return 0;
}

// Stops: there is no application of Qt's yet.
static int callTooEarly(std::string_view call) {
    if (call == "install") qtbackend::install();
    if (call == "settings") qtbackend::DesktopSettings::shared();
    return 0;
}

int main(int argc, char** argv) {
    if (argc == 3 && argv[1] == std::string_view("--call-too-early")) return callTooEarly(argv[2]);
    if (argc == 3 && argv[1] == std::string_view("--print-scales")) return printScales(argv[2]);
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    // Nor does the display that somebody has named.
    qunsetenv("QT_QPA_PLATFORM");
    const qtbackend::Application application({.name = "Tests / ProUpsells", .isHeadless = true});
    foundation::LocaleServices::setCurrent(std::make_shared<icubackend::IcuLocaleServices>());
    return RUN_ALL_TESTS();
}

// Windows need Qt's application object around all tests.
#include <gtest/gtest.h>

#include <QByteArray>

#include "Tests/WindowProgram/Program.hpp"

using namespace proupsells;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qtbackend::Application application;
    tests::program = &application;
    return RUN_ALL_TESTS();
}

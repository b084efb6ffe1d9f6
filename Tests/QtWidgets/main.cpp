// Widgets need the application object of an ordinary host around all tests.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The desktop of whoever runs the tests decides nothing.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

// The paywall and the store page as a host would write them with Qt Quick.

#include <QGuiApplication>
#include <cstdlib>

#include "Quick/Modes.hpp"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("QT_QUICK_BACKEND", "software", 0);
    setenv("QT_SCALE_FACTOR", "2", 0);
    const peers::Command command = peers::Command::parse(argc, argv);
    QGuiApplication application(argc, argv);
    using namespace peers::quick;
    peers::runMode(command, {{"first", first}, {"warm", warm}, {"tap", tap}, {"store", store}, {"window", window}, {"idle", idle}});
}

// The paywall and the store page as a host would write them with Qt Widgets.

#include <QApplication>
#include <cstdlib>

#include "Widgets/Modes.hpp"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("QT_SCALE_FACTOR", "2", 0);
    const peers::Command command = peers::Command::parse(argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    using namespace peers::widgets;
    peers::runMode(command, {{"first", first}, {"warm", warm}, {"tap", tap}, {"store", store}, {"idle", idle}});
}

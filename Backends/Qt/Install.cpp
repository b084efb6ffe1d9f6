#include "Backends/Qt/Install.hpp"

#include <QCoreApplication>
#include <QLocale>
#include <QPointer>

#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Standard/Standard.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/Locale.hpp"

namespace proupsells::qtbackend {

namespace {

// Goes with the application object, without which no timer works.
class ApplicationDriver final : public QObject {
public:
    explicit ApplicationDriver(runloop::MainRunLoop& loop) : QObject(QCoreApplication::instance()), m_driver(loop) {}

private:
    QtRunLoopDriver m_driver;
};

void followLanguageOfSystem() {
    const std::string language = QLocale().name().toStdString();
    const bool isSet = !(foundation::Locale::current() == foundation::Locale());
    if (!isSet && language != "C") foundation::Locale::setCurrent(foundation::Locale(language));
}

} // namespace

void install() {
    if (!QCoreApplication::instance())
        commons::fatalError(
            "There is no QApplication yet: create one before proupsells::qtbackend::install() and before any screen");
    const bool isFirst = !runloop::MainRunLoop::exists();
    standard::install();
    if (isFirst) followLanguageOfSystem();
    // A loop that somebody else drives, or a test, is left alone.
    runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
    if (loop.runsOnRealTime() && !loop.hasWakeUpHandler()) new ApplicationDriver(loop);
}

} // namespace proupsells::qtbackend

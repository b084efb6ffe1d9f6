#include <QQuickView>

#include "Common/Measure.hpp"
#include "Common/QtEvents.hpp"
#include "Quick/Modes.hpp"
#include "Quick/Scene.hpp"

namespace peers::quick {
namespace {

class Window {
public:
    Window(const Command& command, Carousel carousel) : m_scene(command), view(&m_scene.engine(), nullptr) {
        view.setInitialProperties(m_scene.paywallProperties(carousel));
        view.setSource(Scene::url(Scene::paywallFile));
    }

private:
    Scene m_scene;

public:
    QQuickView view;
};

} // namespace

void window(const Command& command, Report& report) {
    Window window(command, Carousel::running);
    double firstFrame_ms = 0;
    QObject::connect(
        &window.view, &QQuickWindow::frameSwapped, &window.view,
        [&] {
            if (firstFrame_ms == 0) firstFrame_ms = sinceProcessStart_ms();
            QCoreApplication::quit();
        },
        Qt::DirectConnection);
    window.view.show();
    QCoreApplication::exec();
    report.add("first_ms", firstFrame_ms);
    report.add("cpu_ms", processCpu_ms());
    report.add(Memory::now());
}

void idle(const Command& command, Report& report) {
    Window window(command, Carousel::running);
    window.view.show();
    measureIdle(command, report);
}

} // namespace peers::quick

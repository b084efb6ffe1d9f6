#include <QCoreApplication>

#include "Common/Measure.hpp"
#include "Common/QtEvents.hpp"
#include "Common/ScrollPath.hpp"
#include "Quick/Modes.hpp"
#include "Quick/Scene.hpp"
#include "Quick/Screen.hpp"

namespace peers::quick {
namespace {

constexpr QPointF cards[] = {{150, 370}, {150, 480}};

void saveWhereWanted(const Screen& screen, const Command& command) {
    if (!command.picture().empty()) screen.picture().save(QString::fromStdString(command.picture()));
}

// Everything is painted again, with nothing changed but that it was out of sight.
Series repaint(Screen& screen, QQuickItem& paywall) {
    Series series;
    for (int round = 0; round < 50; ++round) {
        paywall.setVisible(false);
        screen.paintFrame();
        paywall.setVisible(true);
        const Stopwatch watch;
        screen.paintFrame();
        series.add(watch.wall_ms());
    }
    return series;
}

} // namespace

void first(const Command& command, Report& report) {
    Scene scene(command);
    Screen screen;
    const auto paywall = scene.makePaywall();
    screen.show(*paywall);
    screen.paintFrame();
    report.add("first_ms", sinceProcessStart_ms());
    report.add("cpu_ms", processCpu_ms());
    report.add(Memory::now());
    saveWhereWanted(screen, command);
}

void warm(const Command& command, Report& report) {
    Scene scene(command);
    Screen screen;
    const auto host = scene.make("Host.qml");
    screen.show(*host);
    screen.paintFrame();
    screen.paintFrame();

    const Memory before = Memory::now();
    const Stopwatch watch;
    const auto compiled = scene.component(Scene::paywallFile);
    auto paywall = scene.makePaywall(*compiled);
    host->setVisible(false);
    screen.show(*paywall);
    screen.paintFrame();
    report.add("warm_first_ms", watch.wall_ms());
    report.addGrowth(before, Memory::now());

    Series again;
    for (int round = 0; round < 100; ++round) {
        // The last paywall stays until the next one shows, so that the pictures stay decoded.
        auto last = std::move(paywall);
        const Stopwatch opening;
        paywall = scene.makePaywall();
        last->setVisible(false);
        screen.show(*paywall);
        screen.paintFrame();
        again.add(opening.wall_ms());
        last.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        screen.paintFrame();
    }
    report.add("again", again);
}

void tap(const Command& command, Report& report) {
    Scene scene(command);
    Screen screen;
    const auto paywall = scene.makePaywall();
    screen.show(*paywall);
    screen.paintFrame();

    constexpr int warmingTaps = 20;
    Series cost;
    for (int round = 0; round < 300; ++round) {
        const int card = round % 2 == 0 ? 1 : 0;
        const Stopwatch watch;
        screen.tap(cards[card]);
        screen.paintFrame();
        if (round >= warmingTaps) cost.add(watch.cpu_ms());
        if (paywall->property("selectedIndex").toInt() != card) fail("the tap has not selected its plan");
    }
    report.add("tap_cpu_ms", cost);
    screen.tap(cards[1]);
    screen.paintFrame();
    saveWhereWanted(screen, command);
    report.add("full_repaint_ms", repaint(screen, *paywall));
}

void store(const Command& command, Report& report) {
    Scene scene(command);
    Screen screen;
    const auto page = scene.make("StorePage.qml", scene.storeProperties());
    screen.show(*page);
    screen.paintFrame();

    int drifts = 0;
    const auto drift = [&] { page->setProperty("drifts", ++drifts); };
    ScrollPath path(page->property("largestOffset").toDouble());
    Series scrolled;
    for (int frame = 0; frame < ScrollPath::frames; ++frame) {
        const double offset = path.next();
        const Stopwatch watch;
        if (ScrollPath::driftsIn(frame)) drift();
        page->setProperty("offset", offset);
        screen.paintFrame();
        scrolled.add(watch.cpu_ms());
        if (frame == ScrollPath::pictureFrame) saveWhereWanted(screen, command);
    }
    report.add("frame_cpu_ms", scrolled);

    Series drifted;
    for (int frame = 0; frame < ScrollPath::driftFrames; ++frame) {
        const Stopwatch watch;
        drift();
        screen.paintFrame();
        drifted.add(watch.cpu_ms());
    }
    report.add("strips_only_cpu_ms", drifted);
    report.add(Memory::now());
}

} // namespace peers::quick

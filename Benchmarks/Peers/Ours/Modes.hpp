// What ours can be asked for. `Screen` is where it is shown: made of a clock, it has host(), showHostsOwnText(), show(), which
// shows what has changed, passTime(seconds) and rest(), where the clock is a virtual one, and save(picture).
#pragma once

#include "Common/Measure.hpp"
#include "Common/ScrollPath.hpp"
#include "Ours/Host.hpp"

namespace peers::ours {

inline std::shared_ptr<proupsells::runloop::Clock> realClock() { return std::make_shared<proupsells::runloop::RealClock>(); }
inline std::shared_ptr<proupsells::runloop::Clock> virtualClock() { return std::make_shared<proupsells::runloop::VirtualClock>(); }

template <class Screen>
void first(const Command& command, Report& report) {
    Screen screen(realClock());
    screen.host().present(makePaywall());
    screen.show();
    report.add("first_ms", sinceProcessStart_ms());
    report.add("cpu_ms", processCpu_ms());
    report.add(Memory::now());
    screen.save(command.picture());
}

template <class Screen>
void warm(const Command&, Report& report) {
    Screen screen(virtualClock());
    screen.showHostsOwnText();
    screen.show();
    screen.rest();

    const Memory before = Memory::now();
    const Stopwatch watch;
    auto paywall = makePaywall();
    screen.host().present(paywall);
    screen.show();
    report.add("warm_first_ms", watch.wall_ms());
    report.addGrowth(before, Memory::now());

    Series again;
    for (int round = 0; round < 100; ++round) {
        paywall->dismiss(false);
        paywall.reset();
        screen.show();
        screen.rest();
        const Stopwatch opening;
        paywall = makePaywall();
        screen.host().present(paywall);
        screen.show();
        again.add(opening.wall_ms());
    }
    report.add("again", again);
}

template <class Screen>
void tap(const Command& command, Report& report) {
    Screen screen(virtualClock());
    screen.host().present(makePaywall());
    screen.show();

    constexpr std::string_view cards[] = {"plan.pro.yearly", "plan.pro.monthly"};
    const proupsells::geometry::Rect places[] = {screen.host().part(cards[0]).frame, screen.host().part(cards[1]).frame};
    constexpr int warmingTaps = 20;
    Series cost;
    for (int round = 0; round < 300; ++round) {
        const int card = round % 2 == 0 ? 1 : 0;
        const Stopwatch watch;
        screen.host().tap({places[card].midX(), places[card].midY()});
        screen.show();
        if (round >= warmingTaps) cost.add(watch.cpu_ms());
        // Describing the whole screen would push it out of the processor's cache.
        else if (!contains(screen.host().part(cards[card]).traits, proupsells::accessibility::Traits::selected))
            fail("the tap has not selected its plan");
    }
    report.add("tap_cpu_ms", cost);
    screen.host().tap({places[1].midX(), places[1].midY()});
    screen.show();
    screen.save(command.picture());
}

template <class Screen>
void store(const Command& command, Report& report) {
    constexpr double frame_s = 1.0 / 60;
    Screen screen(virtualClock());
    screen.host().present(makeStorePage());
    screen.show();
    screen.passTime(1);

    ScrollPath path(largestOffset(screen.host().window()->semanticTree()));
    Series scrolled;
    double offset = 0;
    for (int frame = 0; frame < ScrollPath::frames; ++frame) {
        const double next = path.next();
        const Stopwatch watch;
        screen.host().window()->scroll({screenSize.width / 2, screenSize.height / 2}, {0, next - offset});
        screen.passTime(frame_s);
        screen.show();
        scrolled.add(watch.cpu_ms());
        offset = next;
        if (frame == ScrollPath::pictureFrame) screen.save(command.picture());
    }
    report.add("frame_cpu_ms", scrolled);

    Series drifted;
    for (int frame = 0; frame < ScrollPath::driftFrames; ++frame) {
        const Stopwatch watch;
        screen.passTime(frame_s);
        screen.show();
        drifted.add(watch.cpu_ms());
    }
    report.add("strips_only_cpu_ms", drifted);
    report.add(Memory::now());
}

} // namespace peers::ours

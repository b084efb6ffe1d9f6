#include "Widgets/Modes.hpp"

#include <QImage>
#include <memory>

#include "Common/Measure.hpp"
#include "Common/QtEvents.hpp"
#include "Common/ScrollPath.hpp"
#include "Widgets/Paywall.hpp"
#include "Widgets/StorePage.hpp"

namespace peers::widgets {
namespace {

Assets assetsOf(const Command& command) { return Assets(QString::fromStdString(command.assets)); }

// Lays out and paints what is due; the window's surface is in memory, so the frame is there afterwards. One round is enough: events
// that are posted by others are sent in the same call.
void paintFrame() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void show(QWidget& widget) {
    widget.show();
    paintFrame();
}

void saveWhereWanted(QWidget& widget, const Command& command) {
    if (!command.picture().empty()) widget.grab().save(QString::fromStdString(command.picture()));
}

void tapAt(Paywall& paywall, QPoint place) {
    if (QWidget* tapped = paywall.childAt(place)) sendTap(*tapped, tapped->mapFrom(&paywall, place), place);
}

Series repaint(QWidget& widget) {
    QImage picture(750, 1600, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(2);
    Series series;
    for (int round = 0; round < 50; ++round) {
        const Stopwatch watch;
        widget.render(&picture);
        series.add(watch.wall_ms());
    }
    return series;
}

// A window of the host's own, so that fonts, text and the window's surface are warm before the paywall opens in it.
std::unique_ptr<QWidget> makeHost() {
    auto host = std::make_unique<QWidget>();
    host->resize(375, 800);
    makeLabel("Host application", regularFont(17), Qt::black, host.get())->move(100, 400);
    makeLabel("Go Pro", boldFont(17), Qt::black, host.get())->move(16, 40);
    show(*host);
    return host;
}

} // namespace

void first(const Command& command, Report& report) {
    Paywall paywall(assetsOf(command), Carousel::Motion::still);
    show(paywall);
    report.add("first_ms", sinceProcessStart_ms());
    report.add("cpu_ms", processCpu_ms());
    report.add(Memory::now());
    saveWhereWanted(paywall, command);
}

void warm(const Command& command, Report& report) {
    const Assets assets = assetsOf(command);
    const auto host = makeHost();
    const auto open = [&] {
        auto paywall = std::make_unique<Paywall>(assets, Carousel::Motion::still, host.get());
        show(*paywall);
        return paywall;
    };

    const Memory before = Memory::now();
    const Stopwatch watch;
    auto paywall = open();
    report.add("warm_first_ms", watch.wall_ms());
    report.addGrowth(before, Memory::now());

    Series again;
    for (int round = 0; round < 100; ++round) {
        paywall.reset();
        paintFrame();
        const Stopwatch opening;
        paywall = open();
        again.add(opening.wall_ms());
    }
    report.add("again", again);
}

void tap(const Command& command, Report& report) {
    Paywall paywall(assetsOf(command), Carousel::Motion::still);
    show(paywall);

    constexpr int warmingTaps = 20;
    Series cost;
    for (int round = 0; round < 300; ++round) {
        const int card = round % 2 == 0 ? 1 : 0;
        const QPoint place = paywall.cardPlace(card);
        const Stopwatch watch;
        tapAt(paywall, place);
        paintFrame();
        if (round >= warmingTaps) cost.add(watch.cpu_ms());
        if (!paywall.isSelected(card)) fail("the tap has not selected its plan");
    }
    report.add("tap_cpu_ms", cost);
    tapAt(paywall, paywall.cardPlace(1));
    paintFrame();
    saveWhereWanted(paywall, command);
    report.add("full_repaint_ms", repaint(paywall));
}

void store(const Command& command, Report& report) {
    StorePage page(assetsOf(command));
    show(page);

    ScrollPath path(page.largestOffset());
    Series scrolled;
    for (int frame = 0; frame < ScrollPath::frames; ++frame) {
        const int offset = int(path.next());
        const Stopwatch watch;
        if (ScrollPath::driftsIn(frame)) page.drift();
        page.scrollTo(offset);
        paintFrame();
        scrolled.add(watch.cpu_ms());
        if (frame == ScrollPath::pictureFrame) saveWhereWanted(page, command);
    }
    report.add("frame_cpu_ms", scrolled);

    Series drifted;
    for (int frame = 0; frame < ScrollPath::driftFrames; ++frame) {
        const Stopwatch watch;
        page.drift();
        paintFrame();
        drifted.add(watch.cpu_ms());
    }
    report.add("strips_only_cpu_ms", drifted);
    report.add(Memory::now());
}

void idle(const Command& command, Report& report) {
    Paywall paywall(assetsOf(command), Carousel::Motion::running);
    paywall.show();
    measureIdle(command, report);
}

} // namespace peers::widgets

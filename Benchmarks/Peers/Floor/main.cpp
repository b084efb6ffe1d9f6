// What the machine can do with everything prepared: the floor under the figures of the peers.

#include <QGuiApplication>
#include <cstdlib>
#include <cstring>

#include "Common/Measure.hpp"
#include "Common/ScrollPath.hpp"
#include "Common/StorePage.hpp"
#include "Floor/PaywallByHand.hpp"
#include "Floor/PaywallByPainter.hpp"
#include "Floor/StorePage.hpp"

namespace peers::floor {
namespace {

// What is computed into it cannot be left out.
volatile Pixel witness;

QString folderOf(const Command& command) { return QString::fromStdString(command.assets) + "/"; }

template <class Work>
Series timed(int rounds, const Work& work) {
    Series series;
    for (int round = 0; round < rounds; ++round) {
        const Stopwatch watch;
        work();
        series.add(watch.wall_ms());
    }
    return series;
}

template <class PaintFrame>
Series scrolled(const PaintFrame& paintFrame) {
    ScrollPath path(store::contentHeight() - store::viewportHeight);
    Series series;
    int drifts = 0;
    for (int frame = 0; frame < ScrollPath::frames; ++frame) {
        if (ScrollPath::driftsIn(frame)) ++drifts;
        const int offset = int(path.next());
        const Stopwatch watch;
        paintFrame(offset, drifts);
        series.add(watch.cpu_ms());
    }
    return series;
}

void saveWhereWanted(Canvas& canvas, const Command& command) {
    if (command.picture().empty()) return;
    const auto* bytes = reinterpret_cast<const uchar*>(canvas.pixels().data());
    QImage(bytes, width, height, QImage::Format_ARGB32_Premultiplied).save(QString::fromStdString(command.picture()));
}

void paywall(const Command& command, Report& report) {
    constexpr int rounds = 200;
    const Pictures pictures(folderOf(command));
    Canvas canvas;
    Canvas other;
    report.add("fill_ms", timed(rounds, [&] {
                   canvas.fill(0xffffffff);
                   witness = canvas.pixels().back();
               }));
    report.add("copy_ms", timed(rounds, [&] {
                   std::memcpy(other.row(0), canvas.row(0), canvas.pixels().size() * sizeof(Pixel));
                   witness = other.pixels().back();
               }));

    const PaywallByHand byHand(pictures);
    report.add("by_hand_ms", timed(rounds, [&] {
                   byHand.paint(canvas);
                   witness = canvas.pixels().back();
               }));
    saveWhereWanted(canvas, command);

    const PaywallByPainter byPainter(pictures);
    QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
    report.add("by_painter_ms", timed(rounds, [&] {
                   QPainter painter(&picture);
                   byPainter.paint(painter);
               }));
}

void store(const Command& command, Report& report) {
    const StorePage page(folderOf(command));
    Canvas canvas;
    report.add("by_hand_cpu_ms", scrolled([&](int offset, int drifts) {
                   page.paintByHand(canvas, offset, drifts);
                   witness = canvas.pixels().front();
               }));
    saveWhereWanted(canvas, command);

    QImage picture(width, height, QImage::Format_ARGB32_Premultiplied);
    report.add("by_painter_cpu_ms", scrolled([&](int offset, int drifts) {
                   QPainter painter(&picture);
                   page.paintByPainter(painter, offset, drifts);
               }));
}

} // namespace
} // namespace peers::floor

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const peers::Command command = peers::Command::parse(argc, argv);
    QGuiApplication application(argc, argv);
    peers::runMode(command, {{"paywall", peers::floor::paywall}, {"store", peers::floor::store}});
}

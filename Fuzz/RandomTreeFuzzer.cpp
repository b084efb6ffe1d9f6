// Any bytes as a tree of views, changed once by more bytes: every frame is sound, and the changed tree looks like a fresh one.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "Backends/Headless/TestBed.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Tests/SwiftUI/RandomTree.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

void collectFrames(const swiftui::Node& node, std::vector<geometry::Rect>& result) {
    const geometry::Rect& frame = node.frame();
    require(std::isfinite(frame.minX()) && std::isfinite(frame.minY()) && std::isfinite(frame.maxX()) &&
            std::isfinite(frame.maxY()));
    require(frame.width() >= 0 && frame.height() >= 0);
    result.push_back(frame);
    for (const auto& child : node.children())
        if (child && !child->isAbsent()) collectFrames(*child, result);
}

std::vector<geometry::Rect> framesOf(swiftui::ViewHost& host) {
    host.update();
    host.displayList();
    host.semanticTree();
    std::vector<geometry::Rect> result;
    collectFrames(*host.rootNode(), result);
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const headless::TestBed bed;
    const std::span all(data, size);
    std::span<const std::uint8_t> shown = all.first(size / 2);
    const auto make = [&shown] { return swiftui::tests::RandomTree(shown).make(); };

    const auto host = swiftui::ViewHost::create(make);
    host->setSize({320, 480}, {20, 0, 34, 0});
    framesOf(*host);
    shown = all.subspan(size / 2);
    host->setNeedsUpdate();
    const auto changed = framesOf(*host);

    const auto fresh = swiftui::ViewHost::create(make);
    fresh->setSize({320, 480}, {20, 0, 34, 0});
    require(framesOf(*fresh) == changed);
    require(swiftui::tests::paintTheSame(fresh->displayList(), host->displayList()));
    return 0;
}

#include "Platform/Graphics/ShapedText.hpp"

#include <algorithm>

#include "Platform/Foundation/LocaleServices.hpp"

namespace proupsells::graphics {

namespace {

// Every character before Hebrew, the first script from right to left, has a lead byte below this.
constexpr unsigned char firstRightToLeftLead = 0xD6;

bool readsFromLeftToRight(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < firstRightToLeftLead; });
}

} // namespace

std::string joinedText(std::span<const StyledRun> runs) {
    std::string text;
    for (const StyledRun& run : runs) text += run.text;
    return text;
}

void assignBidiLevels(ShapedText& text, geometry::LayoutDirection fallback) {
    const std::string joined = joinedText(text.runs);
    if (fallback == geometry::LayoutDirection::leftToRight && readsFromLeftToRight(joined)) return;
    const std::vector<foundation::BidiRun> runs = foundation::LocaleServices::current().bidiRuns(joined, fallback);
    auto run = runs.begin();
    for (Cluster& cluster : text.clusters) {
        while (run != runs.end() && run->end <= cluster.textOffset) ++run;
        if (run == runs.end()) return;
        cluster.bidiLevel = run->level;
        cluster.paragraphLevel = run->paragraphLevel;
    }
}

} // namespace proupsells::graphics

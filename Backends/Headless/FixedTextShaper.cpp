#include "Backends/Headless/FixedTextShaper.hpp"

#include "Backends/Headless/CharacterClass.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::headless {

namespace {

using graphics::Cluster;
using graphics::LineBreak;
using graphics::ShapedText;
using graphics::StyledRun;

// A character on both sides of a run's end belongs to the run in which it begins.
void addClusters(ShapedText& shaped, std::string_view text) {
    std::size_t offset = 0, run = 0, runEnd = shaped.runs.front().text.size();
    const std::vector<std::size_t> ends = foundation::LocaleServices::current().graphemeEnds(text);
    shaped.clusters.reserve(ends.size());
    for (const std::size_t end : ends) {
        while (offset >= runEnd) runEnd += shaped.runs[++run].text.size();
        Cluster& cluster = shaped.clusters.emplace_back();
        cluster.textOffset = std::uint32_t(offset);
        cluster.textLength = std::uint32_t(end - offset);
        cluster.run = std::uint16_t(run);
        offset = end;
    }
}

std::vector<char32_t> firstCharacters(const ShapedText& shaped, std::string_view text) {
    std::vector<char32_t> characters;
    characters.reserve(shaped.clusters.size());
    for (const Cluster& cluster : shaped.clusters) characters.push_back(foundation::decodeUtf8(text, cluster.textOffset).value);
    return characters;
}

bool isAllowedBetween(char32_t before, char32_t current, char32_t next) {
    if (isBreakingSpace(next) || isParagraphEnd(next)) return false;
    if (isBreakingSpace(current) || current == 0x200B) return true;
    // A hyphen that begins a word, or stands before a number, is a sign.
    if (current == '-' && isDigit(next)) return false;
    if (isHyphen(current)) return before != 0 && !isBreakingSpace(before) && !isClosing(next) && !isHyphen(next);
    if (!isIdeograph(current) && !isIdeograph(next)) return false;
    const auto mayTouchBreak = [](char32_t c) { return isIdeograph(c) || isLetter(c) || isDigit(c) || c >= 0x3001; };
    return mayTouchBreak(current) && mayTouchBreak(next) && !isOpening(current) && !isClosing(next);
}

LineBreak breakBetween(char32_t before, char32_t current, char32_t next) {
    if (isParagraphEnd(current)) return current == '\r' && next == '\n' ? LineBreak::none : LineBreak::mandatory;
    return isAllowedBetween(before, current, next) ? LineBreak::allowed : LineBreak::none;
}

void measureClusters(ShapedText& shaped, const std::vector<char32_t>& characters) {
    for (std::size_t index = 0; index < characters.size(); ++index) {
        Cluster& cluster = shaped.clusters[index];
        const StyledRun& run = shaped.runs[cluster.run];
        const char32_t current = characters[index];
        cluster.isWhitespace = isBreakingSpace(current) || isParagraphEnd(current);
        cluster.advance = isParagraphEnd(current) ? 0 : FixedTextShaper::advancePerSize * run.font.size + run.kern;
        if (index + 1 < characters.size()) {
            cluster.breakAfter = breakBetween(index > 0 ? characters[index - 1] : 0, current, characters[index + 1]);
        } else if (isParagraphEnd(current)) {
            cluster.breakAfter = LineBreak::mandatory;
        }
    }
}

} // namespace

std::shared_ptr<const ShapedText> FixedTextShaper::shape(std::span<const StyledRun> runs, std::string_view,
                                                         geometry::LayoutDirection direction) {
    if (runs.empty()) commons::fatalError("A text without a run cannot be shaped");
    ++m_shapeCount;
    auto shaped = std::make_shared<ShapedText>();
    shaped->keepsGreedyLines = true;
    shaped->runs.assign(runs.begin(), runs.end());
    for (const StyledRun& run : runs) {
        shaped->metrics.push_back({run.font.size * ascentPerSize, run.font.size * descentPerSize});
    }
    const std::string text = graphics::joinedText(runs);
    addClusters(*shaped, text);
    measureClusters(*shaped, firstCharacters(*shaped, text));
    graphics::assignBidiLevels(*shaped, direction);
    return shaped;
}

} // namespace proupsells::headless

#include "Platform/Host/FittedText.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/Host/TextCache.hpp"

namespace proupsells::host {

using geometry::ProposedSize;
using geometry::Size;
using graphics::AttributedString;
using graphics::Color;

namespace {

// Leaves as much of the text as is laid out, and a "…" where something follows. False where it is whole.
bool cutToLongest(std::vector<graphics::StyledRun>& runs) {
    std::size_t room = FittedText::longestText;
    bool isCut = false;
    for (graphics::StyledRun& run : runs) {
        if (isCut) run.text.clear();
        if (run.text.size() <= room) {
            room -= run.text.size();
            continue;
        }
        isCut = true;
        const auto continuesCharacter = [&](std::size_t offset) {
            return (static_cast<unsigned char>(run.text[offset]) & 0xC0) == 0x80;
        };
        while (room > 0 && continuesCharacter(room)) --room;
        run.text.resize(room);
        run.text += "…";
        room = 0;
    }
    return isCut;
}

// Room that is short of a line by less than this is a rounding error.
constexpr double tolerance = 0.005;
// A text shrinks by this share of its size at a time, and at last to its minimum.
constexpr double scaleStep = 0.05;

// The share of its size down to which a text may be set at all. What is designed to be tiny may become smaller.
double leastScale(const std::vector<graphics::StyledRun>& runs) {
    const double size = runs.front().font.size;
    return size >= graphics::leastTextSize ? graphics::leastTextSize / size : 0;
}

std::optional<double> withTolerance(const std::optional<double>& length) {
    return length && std::isfinite(*length) ? std::optional(*length + tolerance) : std::nullopt;
}

std::string_view nameOf(const graphics::Font& font) {
    if (!font.name.empty()) return font.name;
    return font.face ? std::string_view(font.face->name) : std::string_view("system");
}

const Color& colorOf(const graphics::AttributedRun& run, const Color& inherited) {
    return run.attributes.color.name.empty() ? inherited : run.attributes.color;
}

} // namespace

bool FittedText::setRuns(std::vector<graphics::StyledRun> runs) {
    const bool isTooLong = cutToLongest(runs);
    if (runs == m_runs) return false;
    m_isTooLong = isTooLong;
    m_runs = std::move(runs);
    forgetLines();
    return true;
}

bool FittedText::setRules(const TextRules& rules) {
    if (rules == m_rules) return false;
    m_rules = rules;
    forgetLines();
    return true;
}

// What is shown stays until the text is shown anew.
void FittedText::forgetLines() {
    for (Lines* lines : {&m_measured, &m_shown}) {
        lines->scale.reset();
        lines->room.reset();
    }
    m_idealSize.reset();
}

// --- Measures ---

const Size& FittedText::idealSize() {
    if (!m_idealSize) {
        measure(1, {});
        m_measured.room.emplace();
        m_idealSize = m_measured.layout.size;
        m_idealLineCount = int(m_measured.layout.lines.size());
        m_unbreakableWidth = graphics::unbreakableWidth(*m_measured.shaped);
    }
    return *m_idealSize;
}

Size FittedText::sizeIn(const ProposedSize& room) {
    const ProposedSize limits = limitsIn(room);
    return limits == ProposedSize{} ? *m_idealSize : linesWithin(limits).layout.size;
}

double FittedText::firstBaselineIn(const ProposedSize& room) { return linesWithin(limitsIn(room)).layout.lines.front().ascent; }

void FittedText::showIn(const ProposedSize& room) {
    if (&linesWithin(limitsIn(room)) == &m_measured) std::swap(m_shown, m_measured);
}

ProposedSize FittedText::limitsIn(const ProposedSize& offered) {
    const Size& ideal = idealSize();
    ProposedSize room = offered;
    if (room.width && m_rules.keepsWordsWhole && m_rules.lineLimit != 1) room.width = std::max(*room.width, m_unbreakableWidth);
    const bool fits = (!room.width || *room.width + tolerance >= ideal.width) &&
                      (!room.height || m_idealLineCount <= 1 || *room.height + tolerance >= ideal.height);
    return fits ? ProposedSize{} : room;
}

const FittedText::Lines& FittedText::linesWithin(const ProposedSize& limits) {
    if (m_shown.room == limits) return m_shown;
    if (m_measured.room == limits) return m_measured;
    const double start = scaleForWords(limits.width), least = leastScale(m_runs);
    measure(start, limits);
    const double minimum = limits == ProposedSize{} ? start : std::min(start, std::max(least, m_rules.minimumScale));
    for (int step = 1; m_measured.layout.isTruncated && m_measured.scale > minimum; ++step)
        measure(std::max(start - step * scaleStep, minimum), limits);
    m_measured.room = limits;
    return m_measured;
}

double FittedText::scaleForWords(const std::optional<double>& width) {
    if (!width || m_unbreakableWidth <= *width + tolerance || m_rules.lineLimit == 1) return 1;
    const double steps = (*width + tolerance) / m_unbreakableWidth / scaleStep;
    const double scale = std::floor(steps) * scaleStep;
    return scale + tolerance >= std::max(std::min(m_rules.wordScale, m_rules.minimumScale), leastScale(m_runs)) ? scale : 1;
}

const std::shared_ptr<const graphics::ShapedText>& FittedText::shapedAt(double scale) {
    m_scaledRuns = m_runs;
    for (graphics::StyledRun& run : m_scaledRuns) {
        run.font.size *= scale;
        run.kern *= scale;
    }
    return TextCache::shared().shaped(m_scaledRuns, m_rules.language, m_rules.direction);
}

void FittedText::measure(double scale, const ProposedSize& limits) {
    if (m_measured.scale != scale) {
        // The cache may have forgotten a text that is shown here.
        m_measured.shaped = m_shown.scale == scale ? m_shown.shaped : shapedAt(scale);
        m_measured.ellipsis = nullptr;
        m_measured.scale = scale;
    }
    graphics::TextLayoutRequest request{.width = withTolerance(limits.width),
                                        .height = withTolerance(limits.height),
                                        .lineLimit = m_rules.lineLimit,
                                        .avoidsShortLastLine = m_rules.avoidsShortLastLine,
                                        .lineSpacing = m_rules.lineSpacing,
                                        .direction = m_rules.direction};
    if (request.height || request.lineLimit) {
        const graphics::Font& font = m_measured.shaped->runs.front().font;
        if (!m_measured.ellipsis) m_measured.ellipsis = TextCache::shared().ellipsis(font, m_rules.language, m_rules.direction);
        request.ellipsisWidth = totalAdvance(*m_measured.ellipsis);
    }
    graphics::layOutText(*m_measured.shaped, request, m_measured.layout);
}

// --- Picture ---

void FittedText::paint(graphics::PaintContext& context, const graphics::PaintState& state, const geometry::Rect& box,
                       graphics::TextAlignment alignment, const AttributedString& words, const Color& inherited) {
    m_paints.clear();
    for (const graphics::AttributedRun& run : words.runs())
        m_paints.push_back({colorOf(run, inherited).resolved(state.scheme), run.attributes.isStruckThrough});
    if (m_paints.empty()) m_paints.push_back({inherited.resolved(state.scheme)});
    graphics::paintTextLayout(context, state, m_shown.layout, m_shown.shaped, m_shown.ellipsis, box, alignment, m_paints);
}

const graphics::Font& FittedText::shownFont(std::size_t run) const {
    const auto& runs = m_shown.shaped && run < m_shown.shaped->runs.size() ? m_shown.shaped->runs : m_runs;
    return runs[std::min(run, runs.size() - 1)].font;
}

accessibility::TextInfo FittedText::described(const AttributedString& words, const Color& inherited) const {
    accessibility::TextInfo info;
    info.text = words.text();
    const graphics::Font& font = shownFont(0);
    info.font = nameOf(font);
    info.size = font.size;
    info.weight = font.weightOption;
    info.color = words.isEmpty() ? inherited.name : colorOf(words.runs().front(), inherited).name;
    info.lineCount = int(m_shown.layout.lines.size());
    info.isTruncated = m_shown.layout.isTruncated || m_isTooLong;
    for (std::size_t index = 0; index < words.runs().size(); ++index) {
        const graphics::AttributedRun& run = words.runs()[index];
        const graphics::Font& runFont = shownFont(index);
        info.runs.push_back({run.text, std::string(nameOf(runFont)), runFont.size, runFont.weightOption,
                             std::string(colorOf(run, inherited).name), run.attributes.isStruckThrough});
    }
    return info;
}

} // namespace proupsells::host

// A text in the room that it gets: the one way in which both view layers measure, cut, shrink, paint and describe words.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/Graphics/TextLayout.hpp"
#include "Platform/Graphics/TextPainting.hpp"

namespace proupsells::host {

// What the lines of a text depend on besides its words and its room.
struct TextRules {
    std::string language;                  // a tag such as "de-AT"; empty: none in particular
    std::uint64_t languageChangeCount = 0; // another one: the words are shaped anew
    geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight; // the screen's
    std::optional<int> lineLimit;                                                 // absent: as many lines as are needed
    double lineSpacing = 0;                                                       // points between two lines
    bool avoidsShortLastLine = false;                                             // see graphics::layOutText
    double minimumScale = 1; // the smallest share of its size to which a text that would be cut is set instead
    // The smallest share of its size to which a text is set instead of being broken inside a word, unless `minimumScale` allows a
    // smaller one. Where that does not suffice, it is broken at its full size.
    double wordScale = 1;
    bool keepsWordsWhole = false; // never narrower than its longest word, nor set smaller for it, unless it has one line only

    bool operator==(const TextRules&) const = default;
};

// A text shrinks to 0.8 of its normal size before it is broken inside a word, whatever a person's text size makes of it.
constexpr double wordScale(graphics::ContentSizeCategory category) { return 0.8 / std::max(1.0, graphics::scaleFactor(category)); }

// Keeps the lines of the room it is shown in and of the room it was measured in last, so asking for either again costs nothing.
// `words` are those of a rich text, with one run for each run set; a plain text has none. The inherited colour is that of a plain
// text and of every run whose colour has no name.
class FittedText {
public:
    // In bytes of UTF-8, and more than any screen shows. What follows is told to whoever asks for the words, and not laid out.
    static constexpr std::size_t longestText = 20'000;

    // At least one run before anything else is asked; its text may be empty. False where nothing changes.
    bool setRuns(std::vector<graphics::StyledRun> runs);
    bool setRules(const TextRules& rules);

    // With no limit but the number of lines, and never shrunk.
    const geometry::Size& idealSize();
    geometry::Size sizeIn(const geometry::ProposedSize& room);
    double firstBaselineIn(const geometry::ProposedSize& room); // points below the top edge

    void showIn(const geometry::ProposedSize& room);
    geometry::Size shownSize() const { return m_shown.layout.size; }
    // The text as shown, from the top of `box` down.
    void paint(graphics::PaintContext& context, const graphics::PaintState& state, const geometry::Rect& box,
               graphics::TextAlignment alignment, const graphics::AttributedString& words, const graphics::Color& inherited);
    // The text as shown. The caller adds the words of a plain text.
    accessibility::TextInfo described(const graphics::AttributedString& words, const graphics::Color& inherited) const;

private:
    // As laid out in some room.
    struct Lines {
        graphics::TextLayout layout;
        std::shared_ptr<const graphics::ShapedText> shaped;
        std::shared_ptr<const graphics::ShapedText> ellipsis; // null where nothing can be cut
        std::optional<double> scale;                          // of `shaped`; absent: out of date
        std::optional<geometry::ProposedSize> room;           // absent: out of date
    };

    void forgetLines();
    // The share of its size at which no word is broken in a width.
    double scaleForWords(const std::optional<double>& width);
    // The room, or no limits at all where the text needs no wrapping and no cutting in it.
    geometry::ProposedSize limitsIn(const geometry::ProposedSize& offered);
    const Lines& linesWithin(const geometry::ProposedSize& limits);
    const std::shared_ptr<const graphics::ShapedText>& shapedAt(double scale);
    void measure(double scale, const geometry::ProposedSize& limits);
    const graphics::Font& shownFont(std::size_t run) const;

    TextRules m_rules;
    std::vector<graphics::StyledRun> m_runs;
    bool m_isTooLong = false; // the end of the words is left out
    std::optional<geometry::Size> m_idealSize;
    int m_idealLineCount = 0;
    double m_unbreakableWidth = 0; // of the text at its full size; known with the ideal size

    // A stack measures its views in rooms that they do not get, so what is shown is kept apart from what was measured last.
    Lines m_measured;
    Lines m_shown;

    // Kept for their memory.
    std::vector<graphics::StyledRun> m_scaledRuns;
    std::vector<graphics::TextRunPaint> m_paints;
};

} // namespace proupsells::host

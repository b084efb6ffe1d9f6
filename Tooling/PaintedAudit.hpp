// What is wrong with a screen, judged from what is painted of it.
#pragma once

#include <functional>
#include <optional>

#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/System/Compiler.hpp"
#include "Tooling/ScreenAudit.hpp"

namespace proupsells::tooling {

// The colour that is painted at a point of the window.
using ColorAt = std::function<graphics::RGBA(geometry::Point)>;

// The list without its texts: what stands behind them.
PROUPSELLS_EXPORT graphics::DisplayList withoutTexts(const graphics::DisplayList& list);

// A line of a text, or a part of one, as it is painted.
struct PaintedText {
    graphics::Command command;
    std::string path;       // of the node that shows it, see Finding
    std::string identifier; // likewise
};

// Those of the list's texts that belong to the screen and that nothing is painted over. Behind the screen there may be others.
PROUPSELLS_EXPORT std::vector<PaintedText> paintedTexts(const graphics::DisplayList& list,
                                                        const accessibility::SemanticNode& screen);

// Those that stand on a picture, where no colour of the design system says what is behind them.
PROUPSELLS_EXPORT std::vector<PaintedText> textsOnPictures(const graphics::DisplayList& list, std::vector<PaintedText> texts);

// What the list paints where the texts stand, and nothing elsewhere.
PROUPSELLS_EXPORT graphics::DisplayList aroundTexts(const graphics::DisplayList& list, const std::vector<PaintedText>& texts);

// Words and numbers that go on in the next line. Where the text knows where it may be broken, it is not.
PROUPSELLS_EXPORT std::vector<Finding> auditWords(const graphics::DisplayList& list, const std::vector<PaintedText>& texts);

// How far the text stands out from what is painted behind it, as WCAG 2.2 counts: its colour against each place where `shown`, with
// the texts, differs from `behind`. A twentieth of these may be worse. Absent where nothing of the text is painted.
PROUPSELLS_EXPORT std::optional<double> contrastOf(const PaintedText& text, const geometry::Rect& window, const ColorAt& behind,
                                                   const ColorAt& shown);

// Texts that stand out too little; what fades in or out is let be.
PROUPSELLS_EXPORT std::vector<Finding> auditContrast(const graphics::DisplayList& list, const std::vector<PaintedText>& texts,
                                                     const geometry::Rect& window, const ColorAt& behind, const ColorAt& shown);

} // namespace proupsells::tooling

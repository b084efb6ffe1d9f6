// What is wrong with a screen, judged from what is painted of it.
#pragma once

#include <functional>

#include "Platform/Graphics/DisplayList.hpp"
#include "Tooling/ScreenAudit.hpp"

namespace proupsells::tooling {

// The colour that is painted at a point of the window.
using ColorAt = std::function<graphics::RGBA(geometry::Point)>;

// The list without its texts: what stands behind them.
graphics::DisplayList withoutTexts(const graphics::DisplayList& list);

// A line of a text, or a part of one, as it is painted.
struct PaintedText {
    graphics::Command command;
    std::string path;       // of the node that shows it, see Finding
    std::string identifier; // likewise
};

// Those of the list's texts that belong to the screen and that nothing is painted over. Behind the screen there may be others.
std::vector<PaintedText> paintedTexts(const graphics::DisplayList& list, const accessibility::SemanticNode& screen);

// Those that stand on a picture, where no colour of the design system says what is behind them.
std::vector<PaintedText> textsOnPictures(const graphics::DisplayList& list, std::vector<PaintedText> texts);

// What the list paints where the texts stand, and nothing elsewhere.
graphics::DisplayList aroundTexts(const graphics::DisplayList& list, const std::vector<PaintedText>& texts);

// Words and numbers that go on in the next line. Where the text knows where it may be broken, it is not.
std::vector<Finding> auditWords(const graphics::DisplayList& list, const std::vector<PaintedText>& texts);

// Texts that stand out too little from what is painted behind them: their colour against each place where `shown`, with the texts,
// differs from `behind`. A twentieth of these may be worse than the whole; what fades in or out is let be.
std::vector<Finding> auditContrast(const graphics::DisplayList& list, const std::vector<PaintedText>& texts,
                                   const geometry::Rect& window, const ColorAt& behind, const ColorAt& shown);

} // namespace proupsells::tooling

// What a text's lines depend on besides its words.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/Graphics/ShapedText.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"

namespace proupsells::swiftui {

class Text;

struct TextStyle {
    graphics::Font font; // of plain texts and of runs without one; at the size shown
    graphics::ContentSizeCategory contentSize = graphics::ContentSizeCategory::large;
    geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight;
    TextCase textCase = TextCase::asWritten;
    graphics::TextAlignment alignment = graphics::TextAlignment::leading;
    std::optional<int> lineLimit;
    double lineSpacing = 0;
    double minimumScaleFactor = 1;
    std::string language; // "de-AT"
    std::uint64_t languageChangeCount = 0;

    bool operator==(const TextStyle&) const = default;

    static TextStyle of(const Text& text, const EnvironmentValues& environment);
    // The runs to shape, in the case shown, their fonts `scale` times as large. Reuses what is in `result`.
    void makeRuns(const Text& text, const EnvironmentValues& environment, double scale,
                  std::vector<graphics::StyledRun>& result) const;
};

} // namespace proupsells::swiftui

#include "Platform/SwiftUI/Views/TextStyle.hpp"

#include <algorithm>

#include "Platform/Foundation/Locale.hpp"
#include "Platform/SwiftUI/Views/Text.hpp"

namespace proupsells::swiftui {

TextStyle TextStyle::of(const Text& text, const EnvironmentValues& environment) {
    TextStyle style;
    style.font = environment.scaled(environment.font);
    style.contentSize = environment.contentSize;
    style.direction = environment.layoutDirection;
    style.textCase = environment.textCase;
    style.alignment = environment.multilineTextAlignment;
    style.lineLimit = environment.lineLimit;
    style.lineSpacing = environment.lineSpacing;
    style.minimumScaleFactor = environment.minimumScaleFactor;
    style.language = environment.localeIdentifier;
    std::replace(style.language.begin(), style.language.end(), '_', '-');
    style.languageChangeCount = environment.languageChangeCount;
    if (const auto& paragraph = text.attributed().paragraphStyle) {
        style.alignment = paragraph->alignment;
        style.lineSpacing = paragraph->lineSpacing;
    }
    return style;
}

void TextStyle::makeRuns(const Text& text, const EnvironmentValues& environment, double scale,
                         std::vector<graphics::StyledRun>& result) const {
    const auto shown = [&](const std::string& words) {
        if (textCase == TextCase::asWritten) return words;
        return foundation::LocaleServices::current().upperCased(words, foundation::Locale(environment.localeIdentifier));
    };
    const auto& runs = text.attributed().runs();
    result.resize(text.isAttributed() ? runs.size() : 1);
    if (!text.isAttributed()) {
        result.front() = {shown(text.plain()), font, 0};
    } else {
        for (std::size_t i = 0; i < runs.size(); ++i) {
            const graphics::TextAttributes& attributes = runs[i].attributes;
            const graphics::Font own = attributes.font.size > 0 ? environment.scaled(attributes.font) : font;
            result[i] = {shown(runs[i].text), own, attributes.kern};
        }
    }
    for (graphics::StyledRun& run : result) run.font.size *= scale;
}

} // namespace proupsells::swiftui

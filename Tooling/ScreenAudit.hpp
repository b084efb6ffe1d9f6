// What is wrong with a screen, judged from its semantic tree.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Platform/Graphics/Color.hpp"

namespace proupsells::tooling {

enum class AuditRule : std::uint8_t {
    truncated,    // a text does not fit
    outside,      // a text leaves the screen sideways, where nobody can scroll it back
    overlapping,  // two texts that scroll together stand on each other
    smallControl, // too small to be hit, with another one beside it
    untranslated, // English in a pseudo-language, shown or spoken
    faint,        // a text stands out too little from the colour behind it
    unknownColor, // not one of the design system's, so nothing can be said about it
};
std::string_view nameOf(AuditRule rule);

struct Finding {
    AuditRule rule;
    std::string path;   // of indices from the screen's root on, such as "0.2.1"; empty for what is only spoken
    std::string detail; // the node and what is wrong with it
};

struct AuditOptions {
    graphics::ColorScheme scheme = graphics::ColorScheme::light;
    // How wide and high a control must be, in points, or the circle around its centre that no other control's reaches.
    double leastControl = 24;
    // The language that the screen is in, if it is one.
    std::optional<foundation::PseudoLanguage> pseudoLanguage;
};

// What can be scrolled into sight is judged as well; what is fully transparent is not. Texts on pictures are taken to stand out,
// and so are those of disabled controls. In the order of the tree, by rules.
std::vector<Finding> audit(const accessibility::SemanticNode& screen, const AuditOptions& options);
// Of the rules, only whether everything is translated.
std::vector<Finding> audit(const accessibility::ReadingElement& reading, const AuditOptions& options);

// Whether every letter of the text has been through the pseudo-language, however it was put together. Texts without letters are.
bool isPseudoTranslated(std::string_view text, foundation::PseudoLanguage language);

} // namespace proupsells::tooling

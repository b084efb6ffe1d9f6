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
#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// What may be wrong with a screen.
enum class AuditRule : std::uint8_t {
    truncated,          // a text does not fit
    brokenWord,         // a word or number goes on in the next line
    outside,            // a text leaves the screen sideways, where nobody can scroll it back
    unreachable,        // below or above the screen, and nothing scrolls it into sight
    overlapping,        // two texts that scroll together stand on each other
    smallControl,       // too small to be hit, with another one beside it
    smallTarget,        // smaller than a finger's tip
    untranslated,       // English in a pseudo-language, shown or spoken
    faint,              // a text stands out too little from what is behind it
    unknownColor,       // not one of the design system's, so nothing can be said about it
    fixedSize,          // a text stays as large as it is, whatever text size a person asks for
    noName,             // a control that nobody can call by a name
    doubledName,        // two controls that sound the same
    noIdentifier,       // a control that tests cannot find
    doubledIdentifier,  // two controls that tests cannot tell apart
    languageIdentifier, // an identifier that is another one in another language
    wrongRole,          // a control is told as something else
    wrongState,         // what is told of a control's state is not so
    noKeyboard,         // a control that keys do not come to
    hiddenFocus,        // a control in focus that is out of sight
    invisibleFocus,     // a control in focus that looks as it did before
};
// How many rules there are.
inline constexpr int auditRuleCount = int(AuditRule::invisibleFocus) + 1;
// In a few words: "small target".
PROUPSELLS_EXPORT std::string_view nameOf(AuditRule rule);
// One sentence: what to do about it.
PROUPSELLS_EXPORT std::string_view adviceOf(AuditRule rule);

// What is wrong, and where.
struct Finding {
    AuditRule rule;           // that is broken
    std::string path;         // of indices from the screen's root on, such as "0.2.1"; empty for what is only spoken
    std::string detail;       // the node and what is wrong with it
    std::string identifier{}; // the node's, or that of the innermost node around it that has one
};

// What an audit holds a screen to.
struct AuditOptions {
    // In which the screen is shown.
    graphics::ColorScheme scheme = graphics::ColorScheme::light;
    // How wide and high a control must be, in points, or the circle around its centre that no other control's reaches.
    double leastControl = 24;
    // How wide and high a control must be in any case, in points; 0 to let all be.
    double leastTarget = 44;
    // The language that the screen is in, if it is one.
    std::optional<foundation::PseudoLanguage> pseudoLanguage;
};

// What can be scrolled into sight is judged as well; what is fully transparent is not. Texts on pictures are taken to stand out,
// and so are those of disabled controls. In the order of the tree, by rules.
PROUPSELLS_EXPORT std::vector<Finding> audit(const accessibility::SemanticNode& screen, const AuditOptions& options);
// What only those meet who hear a screen or steer it by keys: names, identifiers, roles and states, and whether all is translated.
PROUPSELLS_EXPORT std::vector<Finding> audit(const accessibility::ReadingElement& reading, const AuditOptions& options);

// Whether every letter of the text has been through the pseudo-language, however it was put together. Texts without letters are.
PROUPSELLS_EXPORT bool isPseudoTranslated(std::string_view text, foundation::PseudoLanguage language);

} // namespace proupsells::tooling

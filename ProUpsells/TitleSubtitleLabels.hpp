// The constraints and the look that a headline and its explanation have wherever the store page shows them.
#pragma once

#include <string>
#include <vector>

#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"

namespace proupsells {

// A label for centred text of any number of lines, laid out by constraints.
std::shared_ptr<uikit::UILabel> makeCenteredLabel();

// Centred text with the given distance between its lines.
graphics::AttributedString centeredText(std::string text, const graphics::TextAttributes& attributes, double lineSpacing);

// The uneven distances are deliberate: the explanation stands in a narrow column of at most 300 points, the headline may use the
// whole width but 25 points on each side.
std::vector<std::shared_ptr<uikit::NSLayoutConstraint>> titleSubtitleConstraints(uikit::UIView& container, uikit::UILabel& title,
                                                                                 uikit::UILabel& subtitle);

} // namespace proupsells

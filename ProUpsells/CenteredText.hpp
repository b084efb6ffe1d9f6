// How the store page sets its headlines and explanations: centred, on as many lines as they need.
#pragma once

#include <memory>
#include <string>

#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

// An empty label for such a text, laid out by constraints.
std::shared_ptr<uikit::UILabel> makeCenteredLabel();

// `lineSpacing` is the distance between two lines.
graphics::AttributedString centeredText(std::string text, const graphics::TextAttributes& attributes, double lineSpacing);

} // namespace proupsells

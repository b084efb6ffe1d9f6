// The retained layer's names for what lower rooms supply, and its small enumerations.
#pragma once

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/Font.hpp"
#include "Platform/Graphics/Image.hpp"

namespace proupsells::uikit {

// Colours, fonts and images, as the lower rooms have them.
using UIColor = graphics::Color;
using UIFont = graphics::Font;
using UIImage = graphics::ImageRef; // null: no image

using geometry::Axis;

// Where an axis has no natural length.
inline constexpr double noIntrinsicMetric = -1;

// How much a constraint matters, up to required: of two that cannot both hold, the one with the lower priority gives way.
using UILayoutPriority = double;
inline constexpr UILayoutPriority layoutPriorityRequired = 1000;
inline constexpr UILayoutPriority layoutPriorityHigh = 750;
inline constexpr UILayoutPriority layoutPriorityLow = 250;

} // namespace proupsells::uikit

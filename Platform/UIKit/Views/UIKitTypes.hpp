// The retained layer's names for what lower rooms supply, and its small enumerations.
#pragma once

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Graphics/AttributedString.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/Font.hpp"
#include "Platform/Graphics/Image.hpp"

namespace proupsells::uikit {

using UIColor = graphics::Color;
using UIFont = graphics::Font;
using UIImage = graphics::ImageRef; // null: no image

using geometry::Axis;

// Where an axis has no natural length.
inline constexpr double noIntrinsicMetric = -1;

using UILayoutPriority = double;
inline constexpr UILayoutPriority layoutPriorityRequired = 1000;
inline constexpr UILayoutPriority layoutPriorityHigh = 750;
inline constexpr UILayoutPriority layoutPriorityLow = 250;

} // namespace proupsells::uikit

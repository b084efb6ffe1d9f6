// Where two pictures differ.
#pragma once

#include <string>
#include <string_view>

namespace proupsells::hostprogram {

// Of two PNG files of one size: "96 pixels within 20 40 12 8", the place as x, y, width and height in pixels. Files that cannot be
// read are said to be so.
std::string pixelDifference(std::string_view before, std::string_view after);

} // namespace proupsells::hostprogram

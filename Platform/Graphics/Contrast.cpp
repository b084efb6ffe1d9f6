#include "Platform/Graphics/Contrast.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::graphics {

namespace {

double linear(std::uint8_t component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(RGBA color) { return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue); }

} // namespace

double contrast(RGBA a, RGBA b) {
    const double inA = luminance(a), inB = luminance(b);
    return (std::max(inA, inB) + 0.05) / (std::min(inA, inB) + 0.05);
}

} // namespace proupsells::graphics

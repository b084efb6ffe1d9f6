// Supplied by a backend: shaping.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/ShapedText.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

class PROUPSELLS_EXPORT TextShaper {
public:
    virtual ~TextShaper() = default;

    // Shapes the runs as one text. `language` is a tag such as "de-AT" and steers line breaks and glyph forms; empty: none in
    // particular. A paragraph reads in the direction of its first letter, and in `direction` where it has none. At least one run;
    // its text may be empty.
    virtual std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                              geometry::LayoutDirection direction) = 0;
};

} // namespace proupsells::host

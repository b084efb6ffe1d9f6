// Text whose every measure can be computed by hand.
#pragma once

#include "Platform/Host/TextShaper.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::headless {

// Every user-perceived character is half its font's size wide (letter spacing comes on top) and every line 1.25 × size high, the
// ascent being 1 × size, whatever the font. Ends of lines have no width. Lines may break after blanks and hyphens and between
// ideographs.
class PROUPSELLS_EXPORT FixedTextShaper final : public host::TextShaper {
public:
    // What a font's size is multiplied by.
    static constexpr double advancePerSize = 0.5;
    static constexpr double ascentPerSize = 1;
    static constexpr double descentPerSize = 0.25;

    std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                      geometry::LayoutDirection direction) override;

    // How often shape has been called: texts are to be shaped once.
    std::size_t shapeCount() const { return m_shapeCount; }

private:
    std::size_t m_shapeCount = 0;
};

} // namespace proupsells::headless

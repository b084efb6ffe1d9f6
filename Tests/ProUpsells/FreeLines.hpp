// Texts of fixed measures whose lines may end wherever it looks best.
#pragma once

#include <memory>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Host/Services.hpp"

namespace proupsells::tests {

// The fixed measures, as a shaper of real typefaces hands them out: whoever shows a text may choose where its lines end.
class FreeLinesShaper final : public host::TextShaper {
public:
    std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                      geometry::LayoutDirection direction) override {
        auto shaped = std::make_shared<graphics::ShapedText>(*m_fixed.shape(runs, language, direction));
        shaped->keepsGreedyLines = false;
        return shaped;
    }

private:
    headless::FixedTextShaper m_fixed;
};

inline host::Services servicesWithFreeLines() {
    host::Services services;
    services.textShaper = std::make_shared<FreeLinesShaper>();
    return services;
}

} // namespace proupsells::tests

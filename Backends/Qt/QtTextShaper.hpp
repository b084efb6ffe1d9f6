// Shaping by Qt: fallback fonts, both directions, ligatures and marks.
#pragma once

#include "Backends/Qt/FontCatalog.hpp"
#include "Platform/Host/TextShaper.hpp"

namespace proupsells::qtbackend {

// Needs a QGuiApplication. Lines break where Unicode's default rules allow it; of the language, Qt takes no notice.
class QtTextShaper final : public host::TextShaper {
public:
    std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                      geometry::LayoutDirection direction) override;

private:
    FontCatalog m_catalog;
};

} // namespace proupsells::qtbackend

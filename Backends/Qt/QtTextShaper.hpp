// Shaping by Qt: fallback fonts, both directions, ligatures and marks.
#pragma once

#include <memory>

#include "Platform/Host/TextShaper.hpp"

namespace proupsells::qtbackend {

class FontCatalog;

// Needs a QGuiApplication. Lines break where Unicode's default rules allow it; of the language, Qt takes no notice.
class QtTextShaper final : public host::TextShaper {
public:
    QtTextShaper();
    ~QtTextShaper() override;
    QtTextShaper(const QtTextShaper&) = delete;
    QtTextShaper& operator=(const QtTextShaper&) = delete;

    std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                      geometry::LayoutDirection direction) override;

private:
    std::unique_ptr<FontCatalog> m_catalog;
};

} // namespace proupsells::qtbackend

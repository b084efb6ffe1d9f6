// Shaping by Qt: fallback fonts, both directions, ligatures and marks.
#pragma once

#include <memory>

#include "Platform/Host/TextShaper.hpp"

namespace proupsells::qtbackend {

class FontCatalog;

// Needs a QGuiApplication. The order of mixed text is that of the installed locale services: with the built-in ones, texts that mix
// directions by invisible marks or in brackets may be ordered wrongly. Lines break where Unicode's default rules allow it; Qt
// ignores the language.
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

// Shaping by HarfBuzz: fallback fonts, both directions, ligatures and marks.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "Platform/Host/TextShaper.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

struct FontSources;

// Needs nothing but fonts, and some of those travel with the module. Main thread only; its texts may outlive it. The order of mixed
// text is that of the installed locale services: with the built-in ones, texts that mix directions by invisible marks or in
// brackets may be ordered wrongly.
class PROUPSELLS_EXPORT RasterTextShaper final : public host::TextShaper {
public:
    RasterTextShaper();
    // With fonts from other places than usual.
    explicit RasterTextShaper(FontSources sources);
    ~RasterTextShaper() override;
    RasterTextShaper(const RasterTextShaper&) = delete;
    RasterTextShaper& operator=(const RasterTextShaper&) = delete;

    // A face of the host's own, the first in its family to be asked, for texts shaped from now on; a font that lacks a letter may
    // take it from there, too. `weight` as in OpenType; a variable font serves any weight that it is registered for. The file must
    // stay as it is. One that is no font is reported and left out.
    void registerFace(std::string family, int weight, std::filesystem::path file);

    std::shared_ptr<const graphics::ShapedText> shape(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                      geometry::LayoutDirection direction) override;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace proupsells::rasterbackend

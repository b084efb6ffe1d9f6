// One face of a font file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

#include "Backends/Raster/GlyphShape.hpp"

struct hb_font_t;

namespace proupsells::rasterbackend {

// Texts are shaped at one large size, without hinting, and scaled afterwards: so their widths grow evenly with the font's size
// and do not depend on the pixels.
inline constexpr int designSize_px = 1024;
// Shaping counts in 64ths of a pixel.
inline constexpr double shapingUnitsPerEm = 64.0 * designSize_px;

// The file is mapped, never copied, and must stay as it is. Main thread only.
class FontFile {
public:
    // Null where there is no font to be read. A variable font takes the weight, any other has its own.
    static std::shared_ptr<const FontFile> open(const std::filesystem::path& path, int index, int weight);
    ~FontFile();
    FontFile(const FontFile&) = delete;

    // Whether the font has a glyph of its own for the character.
    bool covers(char32_t character) const;
    // Whether the font took the weight that it was opened with.
    bool isVariable() const;
    // Whether glyphs may be coloured pictures.
    bool hasPictures() const;
    double ascent() const;  // ems
    double descent() const; // ems
    // At the design size. Good for the file's life.
    hb_font_t* shapingFont() const;
    GlyphShape readShape(std::uint32_t glyph) const;

private:
    struct Parts;
    explicit FontFile(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};

} // namespace proupsells::rasterbackend

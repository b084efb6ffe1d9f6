#include "Backends/Raster/FontFile.hpp"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <hb-ot.h>
#include <hb.h>
#include <optional>
#include <utility>

#include "Backends/Raster/GlyphOutline.hpp"
#include "Backends/Raster/GlyphPictures.hpp"
#include "Platform/System/MappedFile.hpp"

namespace proupsells::rasterbackend {

namespace {

template <auto destroy>
struct Destroyer {
    template <class Object>
    void operator()(Object* object) const {
        destroy(object);
    }
};

using BlobRef = std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>>;
using FaceRef = std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>>;
using FontRef = std::unique_ptr<hb_font_t, Destroyer<hb_font_destroy>>;
using FontFuncsRef = std::unique_ptr<hb_font_funcs_t, Destroyer<hb_font_funcs_destroy>>;
using SetRef = std::unique_ptr<hb_set_t, Destroyer<hb_set_destroy>>;

// Advances are whole shaping units times 1/1024: the scale is rounded, then the product, and the rest is cut off.
struct AdvanceScale {
    hb_font_t* unscaled; // counts in the font's own units
    std::int64_t scale;  // 65536ths

    hb_position_t scaled(hb_position_t advance) const {
        const std::int64_t product = (std::abs(std::int64_t(advance)) * scale + 32) / 64;
        return hb_position_t((advance < 0 ? -product : product) >> 10);
    }
};

hb_position_t glyphAdvance(hb_font_t*, void* data, hb_codepoint_t glyph, void*) {
    const auto& scale = *static_cast<AdvanceScale*>(data);
    return scale.scaled(hb_font_get_glyph_h_advance(scale.unscaled, glyph));
}

// Many at once, which HarfBuzz prefers.
void glyphAdvances(hb_font_t*, void* data, unsigned count, const hb_codepoint_t* glyphs, unsigned glyphStride,
                   hb_position_t* advances, unsigned advanceStride, void*) {
    const auto& scale = *static_cast<AdvanceScale*>(data);
    hb_font_get_glyph_h_advances(scale.unscaled, count, glyphs, glyphStride, advances, advanceStride);
    for (unsigned index = 0; index < count; ++index) {
        *advances = scale.scaled(*advances);
        advances = reinterpret_cast<hb_position_t*>(reinterpret_cast<char*>(advances) + advanceStride);
    }
}

hb_font_funcs_t* shapingFuncs() {
    static const FontFuncsRef funcs = [] {
        FontFuncsRef made(hb_font_funcs_create());
        hb_font_funcs_set_glyph_h_advance_func(made.get(), glyphAdvance, nullptr, nullptr);
        hb_font_funcs_set_glyph_h_advances_func(made.get(), glyphAdvances, nullptr, nullptr);
        hb_font_funcs_make_immutable(made.get());
        return made;
    }();
    return funcs.get();
}

void setWeight(hb_font_t* unscaled, int weight) {
    const hb_variation_t variation{HB_TAG('w', 'g', 'h', 't'), float(weight)};
    hb_font_set_variations(unscaled, &variation, 1);
}

bool hasTable(hb_face_t* face, hb_tag_t tag) { return hb_blob_get_length(BlobRef(hb_face_reference_table(face, tag)).get()) > 0; }

// Whether glyphs may have colours, as layers or as pixels.
bool hasColours(hb_face_t* face) {
    return hasTable(face, HB_TAG('C', 'O', 'L', 'R')) || hasTable(face, HB_TAG('C', 'B', 'D', 'T')) ||
           hasTable(face, HB_TAG('s', 'b', 'i', 'x'));
}

// Null where there are no bytes.
BlobRef mappedBlob(const std::filesystem::path& path) {
    auto mapped = std::make_unique<system::MappedFile>(path);
    const std::string_view bytes = mapped->bytes();
    if (bytes.empty()) return nullptr;
    return BlobRef(hb_blob_create_or_fail(bytes.data(), unsigned(bytes.size()), HB_MEMORY_MODE_READONLY, mapped.release(),
                                          [](void* file) { delete static_cast<system::MappedFile*>(file); }));
}

// In ems, and in whole shaping units as the advances are.
double metric(hb_font_t* unscaled, hb_ot_metrics_tag_t tag, double unitsPerEm) {
    hb_position_t value = 0;
    hb_ot_metrics_get_position(unscaled, tag, &value);
    return double(std::lround(value / unitsPerEm * shapingUnitsPerEm)) / shapingUnitsPerEm;
}

} // namespace

struct FontFile::Parts {
    BlobRef blob;
    FontRef unscaled;
    AdvanceScale advanceScale{};
    FontRef shaping;
    SetRef characters{hb_set_create()};
    double ascent = 0, descent = 0;
    bool isVariable = false;
    std::optional<GlyphPictures> pictures; // where glyphs may have some
};

FontFile::FontFile(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
FontFile::~FontFile() = default;

std::shared_ptr<const FontFile> FontFile::open(const std::filesystem::path& path, int index, int weight) {
    auto parts = std::make_unique<Parts>();
    parts->blob = mappedBlob(path);
    if (!parts->blob) return nullptr;
    if (unsigned(index) >= hb_face_count(parts->blob.get())) return nullptr;
    const FaceRef face(hb_face_create(parts->blob.get(), unsigned(index)));
    if (hb_face_get_glyph_count(face.get()) == 0) return nullptr;

    const auto unitsPerEm = int(hb_face_get_upem(face.get()));
    parts->unscaled.reset(hb_font_create(face.get()));
    hb_font_set_scale(parts->unscaled.get(), unitsPerEm, unitsPerEm);
    hb_ot_var_axis_info_t axis;
    parts->isVariable = hb_ot_var_find_axis_info(face.get(), HB_TAG('w', 'g', 'h', 't'), &axis);
    if (parts->isVariable) setWeight(parts->unscaled.get(), weight);
    parts->ascent = metric(parts->unscaled.get(), HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER, unitsPerEm);
    parts->descent = -metric(parts->unscaled.get(), HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER, unitsPerEm);

    parts->advanceScale = {parts->unscaled.get(), (std::int64_t(shapingUnitsPerEm) * 65536 + unitsPerEm / 2) / unitsPerEm};
    parts->shaping.reset(hb_font_create_sub_font(parts->unscaled.get()));
    hb_font_set_scale(parts->shaping.get(), int(shapingUnitsPerEm), int(shapingUnitsPerEm));
    hb_font_set_funcs(parts->shaping.get(), shapingFuncs(), &parts->advanceScale, nullptr);

    hb_face_collect_unicodes(face.get(), parts->characters.get());
    if (hasColours(face.get())) {
        unsigned length = 0;
        const char* bytes = hb_blob_get_data(parts->blob.get(), &length);
        parts->pictures.emplace(std::span(bytes, length), index);
    }
    return std::shared_ptr<const FontFile>(new FontFile(std::move(parts)));
}

bool FontFile::covers(char32_t character) const { return hb_set_has(m_parts->characters.get(), character); }
bool FontFile::isVariable() const { return m_parts->isVariable; }
bool FontFile::hasPictures() const { return m_parts->pictures.has_value(); }
double FontFile::ascent() const { return m_parts->ascent; }
double FontFile::descent() const { return m_parts->descent; }
hb_font_t* FontFile::shapingFont() const { return m_parts->shaping.get(); }

GlyphShape FontFile::readShape(std::uint32_t glyph) const {
    if (m_parts->pictures) {
        GlyphShape shape = m_parts->pictures->shape(glyph);
        if (!shape.isEmpty()) return shape;
    }
    return {readOutline(m_parts->unscaled.get(), glyph), {}, {}};
}

} // namespace proupsells::rasterbackend

#include "Backends/Raster/FontFile.hpp"

#include <cmath>
#include <hb-ot.h>
#include <hb.h>
#include <utility>
#include <vector>

#include "Backends/Raster/GlyphShapeReader.hpp"
#include "Platform/System/PathText.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MULTIPLE_MASTERS_H

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

// Lives as long as the last font.
std::shared_ptr<FT_LibraryRec_> freeType() {
    static const std::shared_ptr<FT_LibraryRec_> library = [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return std::shared_ptr<FT_LibraryRec_>(made, FT_Done_FreeType);
    }();
    return library;
}

// Advances are rounded as FreeType rounds the ones that are not hinted: the scale, then the product, and the rest is cut off.
struct AdvanceScale {
    hb_font_t* unscaled; // counts in the font's own units
    FT_Fixed scale;

    hb_position_t scaled(hb_position_t advance) const { return hb_position_t(FT_MulDiv(advance, scale, 64) >> 10); }
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

void setWeight(FT_Face face, hb_font_t* unscaled, int weight) {
    const hb_tag_t tag = HB_TAG('w', 'g', 'h', 't');
    const hb_variation_t variation{tag, float(weight)};
    hb_font_set_variations(unscaled, &variation, 1);

    FT_MM_Var* axes = nullptr;
    if (FT_Get_MM_Var(face, &axes) != 0) return;
    std::vector<FT_Fixed> places;
    for (unsigned axis = 0; axis < axes->num_axis; ++axis)
        places.push_back(axes->axis[axis].tag == tag ? FT_Fixed(weight) * 0x10000 : axes->axis[axis].def);
    FT_Set_Var_Design_Coordinates(face, axes->num_axis, places.data());
    FT_Done_MM_Var(freeType().get(), axes);
}

// In ems, and in whole shaping units as the advances are.
double metric(hb_font_t* unscaled, hb_ot_metrics_tag_t tag, double unitsPerEm) {
    hb_position_t value = 0;
    hb_ot_metrics_get_position(unscaled, tag, &value);
    return double(std::lround(value / unitsPerEm * shapingUnitsPerEm)) / shapingUnitsPerEm;
}

} // namespace

struct FontFile::Parts {
    std::shared_ptr<FT_LibraryRec_> library = freeType();
    BlobRef blob;
    FT_Face face = nullptr;
    FontRef unscaled;
    AdvanceScale advanceScale{};
    FontRef shaping;
    SetRef characters{hb_set_create()};
    double ascent = 0, descent = 0;
    bool isVariable = false, hasPictures = false;

    ~Parts() {
        if (face) FT_Done_Face(face);
    }
};

FontFile::FontFile(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
FontFile::~FontFile() = default;

std::shared_ptr<const FontFile> FontFile::open(const std::filesystem::path& path, int index, int weight) {
    auto parts = std::make_unique<Parts>();
    parts->blob.reset(hb_blob_create_from_file_or_fail(system::textOf(path).c_str()));
    if (!parts->blob) return nullptr;
    unsigned length = 0;
    const char* bytes = hb_blob_get_data(parts->blob.get(), &length);
    const auto* memory = reinterpret_cast<const FT_Byte*>(bytes);
    if (FT_New_Memory_Face(parts->library.get(), memory, FT_Long(length), index, &parts->face) != 0) return nullptr;

    const FaceRef face(hb_face_create(parts->blob.get(), unsigned(index)));
    const auto unitsPerEm = int(hb_face_get_upem(face.get()));
    parts->unscaled.reset(hb_font_create(face.get()));
    hb_font_set_scale(parts->unscaled.get(), unitsPerEm, unitsPerEm);
    hb_ot_var_axis_info_t axis;
    parts->isVariable = hb_ot_var_find_axis_info(face.get(), HB_TAG('w', 'g', 'h', 't'), &axis);
    if (parts->isVariable) setWeight(parts->face, parts->unscaled.get(), weight);
    parts->ascent = metric(parts->unscaled.get(), HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER, unitsPerEm);
    parts->descent = -metric(parts->unscaled.get(), HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER, unitsPerEm);

    parts->advanceScale = {parts->unscaled.get(), FT_DivFix(FT_Long(shapingUnitsPerEm), unitsPerEm)};
    parts->shaping.reset(hb_font_create_sub_font(parts->unscaled.get()));
    hb_font_set_scale(parts->shaping.get(), int(shapingUnitsPerEm), int(shapingUnitsPerEm));
    hb_font_set_funcs(parts->shaping.get(), shapingFuncs(), &parts->advanceScale, nullptr);

    hb_face_collect_unicodes(face.get(), parts->characters.get());
    parts->hasPictures = FT_HAS_COLOR(parts->face);
    return std::shared_ptr<const FontFile>(new FontFile(std::move(parts)));
}

bool FontFile::covers(char32_t character) const { return hb_set_has(m_parts->characters.get(), character); }
bool FontFile::isVariable() const { return m_parts->isVariable; }
bool FontFile::hasPictures() const { return m_parts->hasPictures; }
double FontFile::ascent() const { return m_parts->ascent; }
double FontFile::descent() const { return m_parts->descent; }
hb_font_t* FontFile::shapingFont() const { return m_parts->shaping.get(); }

GlyphShape FontFile::readShape(std::uint32_t glyph) const {
    if (m_parts->hasPictures) {
        GlyphShape shape = readPicture(m_parts->face, glyph);
        if (!shape.isEmpty()) return shape;
    }
    return {readOutline(m_parts->face, glyph), {}, {}};
}

} // namespace proupsells::rasterbackend

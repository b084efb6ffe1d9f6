#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <hb.h>
#include <map>
#include <set>

#include "Platform/Foundation/Utf8.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using rasterbackend::FaceFile;
using rasterbackend::FontFile;
using testing::IsEmpty;

namespace {

std::vector<FaceFile> shippedFaces() { return rasterbackend::facesInFolder(rasterbackend::shippedFaceFolder()); }

// The packaged typeface that a shipped face was cut from.
std::shared_ptr<const FontFile> packaged(const FaceFile& face) {
    const std::map<int, std::string> styles{{400, "Regular"}, {500, "Medium"}, {600, "SemiBold"}, {700, "Bold"}};
    const std::map<std::string, std::string> names{
        {"Inter", "inter/Inter-"}, {"Inter Display", "inter/InterDisplay-"}, {"Sora", "sora/Sora-"}};
    return FontFile::open(std::filesystem::path(PROUPSELLS_TYPEFACES) / (names.at(face.family) + styles.at(face.weight) + ".otf"),
                          0, 400);
}

struct ShapedGlyph {
    unsigned cluster;
    hb_position_t advance, x, y;

    bool operator==(const ShapedGlyph&) const = default;
};

// As texts are shaped that ask for no feature.
std::vector<ShapedGlyph> shaped(const FontFile& font, const std::string& text) {
    hb_buffer_t* buffer = hb_buffer_create();
    hb_buffer_add_utf8(buffer, text.data(), int(text.size()), 0, -1);
    hb_buffer_guess_segment_properties(buffer);
    hb_shape(font.shapingFont(), buffer, nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t* glyphs = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(buffer, &count);
    std::vector<ShapedGlyph> result;
    for (unsigned index = 0; index < count; ++index)
        result.push_back({glyphs[index].cluster, places[index].x_advance, places[index].x_offset, places[index].y_offset});
    hb_buffer_destroy(buffer);
    return result;
}

} // namespace

TEST(ShippedFaces, AreTheOnesThatTheDesignSystemNames) {
    using velauikit::FontOption;
    std::set<std::string> named, shipped;
    const auto name = [&](const graphics::Font& font) {
        named.insert(font.face->family + " " + std::to_string(font.face->weight));
    };

    for (const FontOption option : {FontOption::regular, FontOption::medium, FontOption::bold})
        for (const double size : {17.0, 24.0}) name(velauikit::velaDefaultFont(option, size));
    name(velauikit::quenbyBold(24));
    name(velauikit::quenbySemibold(24));
    for (const lumokit::TextStyle& style :
         {lumokit::headingH2, lumokit::bodyLarge, lumokit::labelSmall, lumokit::labelCapsSmall, lumokit::labelCapsLarge})
        name(style.font(swiftui::SizeClass::compact));
    for (const FaceFile& face : shippedFaces()) shipped.insert(face.family + " " + std::to_string(face.weight));

    EXPECT_EQ(shipped, named);
}

TEST(ShippedFaces, HaveEveryLetterOfLatinGreekAndCyrillicThatTheirTypefaceHas) {
    for (const FaceFile& face : shippedFaces()) {
        SCOPED_TRACE(face.path);
        const auto cut = FontFile::open(face.path, 0, 400), whole = packaged(face);
        std::vector<std::string> missing;
        for (char32_t character = 0x20; character < 0x20000; ++character) {
            const hb_script_t script = hb_unicode_script(hb_unicode_funcs_get_default(), character);
            const bool isPromised = script == HB_SCRIPT_LATIN || script == HB_SCRIPT_GREEK || script == HB_SCRIPT_CYRILLIC ||
                                    (character >= 0x2000 && character < 0x2C00);
            if (!isPromised || !whole->covers(character) || cut->covers(character)) continue;
            missing.emplace_back();
            foundation::appendUtf8(missing.back(), character);
        }
        EXPECT_THAT(missing, IsEmpty());
    }
}

TEST(ShippedFaces, CoverTheAlphabetsOfEuropeInInter) {
    const std::string alphabets = "ÀÉÎÕÜßæøåçñ ĄĆĘŁŃŚŹŻ ČĎĚŇŘŠŤŮŽ ĞİŞı ĐƠƯạằểỗự ΑΒΓΔΩάέήίόύώϊ АБВГДЕЁЖЗИЙЮЯ ЂЈЉЊЋЏ ІЇЄҐ "
                                  "€£₽₺₴₹ "
                                  "„“”‚‘’«»–—…•→✓";
    for (const FaceFile& face : shippedFaces()) {
        if (face.family == "Sora") continue;
        SCOPED_TRACE(face.path);
        const auto font = FontFile::open(face.path, 0, 400);
        for (std::size_t offset = 0; offset < alphabets.size();) {
            const auto character = foundation::decodeUtf8(alphabets, offset);
            EXPECT_TRUE(font->covers(character.value)) << alphabets.substr(offset, character.length);
            offset += character.length;
        }
    }
}

TEST(ShippedFaces, ShapeTextsLikeTheirTypeface) {
    for (const FaceFile& face : shippedFaces()) {
        SCOPED_TRACE(face.path);
        const auto cut = FontFile::open(face.path, 0, 400), whole = packaged(face);
        for (const char* text : {"AVATAR To: “Vélo” fi ffi fl", "12:30 – 1\u20442 (A) @B «x» -> --> 10x20",
                                 "e\u0301\u0323 a\u0308\u0304 i\u0307", "Ţ ţ Ș ș Ĳ ĳ ŀl", "Τάξη ΑΫ", "Ўзбекча Ђоковић Ґ"})
            EXPECT_EQ(shaped(*cut, text), shaped(*whole, text)) << text;
    }
}

TEST(ShippedFaces, AreAsHighAsTheirTypeface) {
    for (const FaceFile& face : shippedFaces()) {
        SCOPED_TRACE(face.path);
        const auto cut = FontFile::open(face.path, 0, 400), whole = packaged(face);
        EXPECT_EQ(cut->ascent(), whole->ascent());
        EXPECT_EQ(cut->descent(), whole->descent());
    }
}

TEST(ShippedFaces, LieBesideTheirLicences) {
    for (const char* name : {"fonts-inter.copyright", "fonts-sora.copyright"})
        EXPECT_THAT(tests::bytesOf(rasterbackend::shippedFaceFolder() / name), testing::HasSubstr("Open Font License")) << name;
}

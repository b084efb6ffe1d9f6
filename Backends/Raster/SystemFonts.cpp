#include "Backends/Raster/SystemFonts.hpp"

#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>

#include "Platform/System/PathText.hpp"

namespace proupsells::rasterbackend {

namespace {

struct PatternDestroyer {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using PatternRef = std::unique_ptr<FcPattern, PatternDestroyer>;

const FcChar8* fcText(const std::string& text) { return reinterpret_cast<const FcChar8*>(text.c_str()); }

std::string textOf(const FcPattern* font, const char* object) {
    FcChar8* text = nullptr;
    const bool isThere = FcPatternGetString(font, object, 0, &text) == FcResultMatch;
    return isThere ? reinterpret_cast<const char*>(text) : std::string();
}

int numberOf(const FcPattern* font, const char* object, int fallback) {
    int number = fallback;
    return FcPatternGetInteger(font, object, 0, &number) == FcResultMatch ? number : fallback;
}

bool is(const FcPattern* font, const char* object) {
    FcBool value = FcFalse;
    return FcPatternGetBool(font, object, 0, &value) == FcResultMatch && value == FcTrue;
}

// Told by the style's name, since some packages carry weight numbers that no other font would agree with. 0 for an italic one.
int weightOf(const FcPattern* font) {
    if (const int named = weightOfStyle(textOf(font, FC_STYLE))) return named;
    if (numberOf(font, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN) return 0;
    double weight = FC_WEIGHT_REGULAR;
    FcPatternGetDouble(font, FC_WEIGHT, 0, &weight);
    return int(std::lround(FcWeightToOpenTypeDouble(weight)));
}

FaceFile faceOf(const FcPattern* font, int weight) {
    // The upper half of the index names an instance of a variable font.
    return {textOf(font, FC_FAMILY), weight, system::pathOf(textOf(font, FC_FILE)), numberOf(font, FC_INDEX, 0) & 0xFFFF};
}

bool covers(const FcPattern* font, std::u32string_view characters) {
    FcCharSet* set = nullptr;
    if (FcPatternGetCharSet(font, FC_CHARSET, 0, &set) != FcResultMatch) return false;
    return std::all_of(characters.begin(), characters.end(), [set](char32_t c) { return FcCharSetHasChar(set, c); });
}

// Its scripts are drawn to stand beside each other, and beside our own faces.
bool isOfPreferredFamily(const FcPattern* font) { return textOf(font, FC_FAMILY).starts_with("Noto Sans"); }

} // namespace

void SystemFonts::FontSetDestroyer::operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }

SystemFonts::SystemFonts(std::filesystem::path configuration) : m_file(std::move(configuration)) {}

SystemFonts::~SystemFonts() {
    if (m_configuration) FcConfigDestroy(m_configuration);
}

FcConfig* SystemFonts::configuration() {
    if (m_configuration) return m_configuration;
    m_configuration = FcConfigCreate();
    const std::string file = system::textOf(m_file);
    // Null for the system's own. A machine without one has no fonts, which is nothing to complain about.
    FcConfigParseAndLoad(m_configuration, m_file.empty() ? nullptr : fcText(file), FcFalse);
    FcConfigBuildFonts(m_configuration);
    return m_configuration;
}

bool SystemFonts::isEmpty() {
    const FcFontSet* fonts = FcConfigGetFonts(configuration(), FcSetSystem);
    return !fonts || fonts->nfont == 0;
}

std::vector<FaceFile> SystemFonts::facesOf(const std::string& family) {
    const PatternRef pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, fcText(family));
    FcObjectSet* objects =
        FcObjectSetBuild(FC_FAMILY, FC_STYLE, FC_SLANT, FC_WEIGHT, FC_FILE, FC_INDEX, static_cast<const char*>(nullptr));
    const FontSetRef fonts(FcFontList(configuration(), pattern.get(), objects));
    FcObjectSetDestroy(objects);
    std::vector<FaceFile> faces;
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        const int weight = weightOf(fonts->fonts[index]);
        if (weight == 0) continue;
        faces.push_back(faceOf(fonts->fonts[index], weight));
        faces.back().family = family;
    }
    // fontconfig lists them in the order of its folders.
    std::sort(faces.begin(), faces.end(), [](const FaceFile& a, const FaceFile& b) { return a.path < b.path; });
    return faces;
}

SystemFonts::FontSetRef SystemFonts::sorted(const std::string& family, const std::string& language, int weight, bool isColoured) {
    const PatternRef pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, fcText(family));
    FcPatternAddDouble(pattern.get(), FC_WEIGHT, FcWeightFromOpenTypeDouble(weight));
    FcPatternAddBool(pattern.get(), FC_COLOR, isColoured);
    // Without a language, fontconfig would take the process's own.
    FcPatternAddString(pattern.get(), FC_LANG, fcText(language.empty() ? "und" : language));
    FcConfigSubstitute(configuration(), pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultMatch;
    return FontSetRef(FcFontSort(configuration(), pattern.get(), FcFalse, nullptr, &result));
}

std::optional<FaceFile> SystemFonts::faceFor(std::u32string_view characters, const std::string& language, int weight) {
    FontSetRef& fonts = m_fallbacks[{language, weight}];
    if (!fonts) fonts = sorted("sans-serif", language, weight, false);
    const FcPattern* found = nullptr;
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        const FcPattern* font = fonts->fonts[index];
        if (!is(font, FC_SCALABLE) || is(font, FC_COLOR)) continue;
        if (found && !isOfPreferredFamily(font)) continue;
        if (!covers(font, characters)) continue;
        if (isOfPreferredFamily(font)) return faceOf(font, weight);
        found = font;
    }
    return found ? std::optional(faceOf(found, weight)) : std::nullopt;
}

std::optional<FaceFile> SystemFonts::emojiFor(std::u32string_view characters) {
    if (!m_emoji) m_emoji = sorted("emoji", {}, 400, true);
    for (int index = 0; m_emoji && index < m_emoji->nfont; ++index) {
        const FcPattern* font = m_emoji->fonts[index];
        if (is(font, FC_COLOR) && covers(font, characters)) return faceOf(font, 400);
    }
    return std::nullopt;
}

} // namespace proupsells::rasterbackend

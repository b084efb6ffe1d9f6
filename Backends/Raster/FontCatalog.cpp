#include "Backends/Raster/FontCatalog.hpp"

#include <algorithm>
#include <utility>

#include "Backends/Raster/FallbackLanguage.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Graphics/Typefaces.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::rasterbackend {

using graphics::Typefaces;

namespace {

const char* const defaultFamily = "Inter";
constexpr double usualAscent = 0.97, usualDescent = 0.24; // where there is no font to ask

void report(const std::string& message, std::string_view function) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, message, function);
}

// Whether a font has the characters, in whichever of their equal spellings.
bool shows(const FontFile& font, std::u32string_view characters) {
    const auto coversAll = [&](std::u32string_view spelling) {
        return std::all_of(spelling.begin(), spelling.end(), [&](char32_t c) { return font.covers(c); });
    };
    return coversAll(characters) || coversAll(composed(characters)) || coversAll(decomposed(characters));
}

} // namespace

FontCatalog::FontCatalog(FontSources sources)
    : m_shipped(facesInFolder(sources.shippedFaces)), m_system(std::move(sources.systemConfiguration)) {}

void FontCatalog::registerFace(std::string family, int weight, std::filesystem::path file) {
    const FaceFile face{std::move(family), weight, std::move(file)};
    if (!open(face, weight)) return report("The file " + system::textOf(face.path) + " is no font", "FontCatalog::registerFace");
    m_registered.push_back(face);
    m_faces.clear();
    m_answers.clear();
}

void FontCatalog::followTypefaces() {
    if (std::exchange(m_typefaceChangeCount, Typefaces::changeCount()) == Typefaces::changeCount()) return;
    std::vector<FaceFile> faces;
    for (const Typefaces::File& file : Typefaces::current().files) {
        FaceFile face{file.family, file.weight, file.path};
        if (open(face, face.weight)) {
            faces.push_back(std::move(face));
        } else {
            report("The file " + system::textOf(file.path) + " is no font", "FontCatalog::followTypefaces");
            m_missingFamilies.push_back(file.family);
        }
    }
    m_registered.erase(m_registered.begin(), m_registered.begin() + m_typefaceFileCount);
    m_registered.insert(m_registered.begin(), faces.begin(), faces.end());
    m_typefaceFileCount = std::ptrdiff_t(faces.size());
    m_faces.clear();
    m_answers.clear();
}

const CatalogFace& FontCatalog::face(const graphics::FontFace* face) {
    followTypefaces();
    const auto found = m_faces.find(face);
    if (found != m_faces.end()) return found->second;
    return m_faces.emplace(face, face ? find(face->family, face->weight) : find(defaultFamily, 400)).first->second;
}

CatalogFace FontCatalog::find(const std::string& family, int weight) {
    GlyphTableRef font = fontInstead(family, weight);
    if (!font) font = findFont(family, weight);
    if (!font) font = standIn(family, weight);
    if (!font) return {nullptr, weight, usualAscent, usualDescent};
    return {font, weight, font->file().ascent(), font->file().descent()};
}

GlyphTableRef FontCatalog::fontInstead(const std::string& family, int weight) {
    const auto& families = Typefaces::current().families;
    const auto other = families.find(family);
    if (other == families.end()) return nullptr;
    GlyphTableRef font = findFont(other->second, weight);
    if (!font) reportMissing(other->second, "; \"" + family + "\" stays");
    return font;
}

// A face of exactly this weight, from the first source that has one; else the nearest of all.
GlyphTableRef FontCatalog::findFont(const std::string& family, int weight) {
    std::vector<FaceFile> faces = m_registered;
    faces.insert(faces.end(), m_shipped.begin(), m_shipped.end());
    const FaceFile* nearest = nearestReadable(faces, family, weight);
    if (!nearest || nearest->weight != weight) {
        const std::vector<FaceFile> installed = m_system.facesOf(family);
        faces.insert(faces.end(), installed.begin(), installed.end());
        nearest = nearestReadable(faces, family, weight);
    }
    return nearest ? open(*nearest, weight) : nullptr;
}

const FaceFile* FontCatalog::nearestReadable(std::vector<FaceFile>& faces, const std::string& family, int weight) {
    while (const FaceFile* nearest = nearestFace(faces, family, weight)) {
        if (open(*nearest, weight)) return nearest;
        if (m_unreadableFiles.insert(nearest->path).second)
            report("The file " + system::textOf(nearest->path) + " is no font", "FontCatalog::nearestReadable");
        faces.erase(faces.begin() + (nearest - faces.data()));
    }
    return nullptr;
}

GlyphTableRef FontCatalog::standIn(const std::string& missingFamily, int weight) {
    GlyphTableRef font;
    std::string family = defaultFamily;
    if (const FaceFile* face = nearestReadable(m_shipped, family, weight)) {
        font = open(*face, weight);
    } else if (const std::optional<FaceFile> installed = m_system.faceFor(U"a", {}, weight)) {
        font = open(*installed, weight);
        family = installed->family;
    }
    reportMissing(missingFamily, font ? "; \"" + family + "\" stands in for it" : ", and no other is; texts stay empty");
    return font;
}

void FontCatalog::reportMissing(const std::string& family, const std::string& consequence) {
    if (std::find(m_missingFamilies.begin(), m_missingFamilies.end(), family) != m_missingFamilies.end()) return;
    m_missingFamilies.push_back(family);
    report("The font family \"" + family + "\" is not installed" + consequence, "FontCatalog::standIn");
}

// Null where the file is no font. Weights share a file that has only one.
GlyphTableRef FontCatalog::open(const FaceFile& face, int weight) {
    constexpr int anyWeight = 0;
    for (const int known : {anyWeight, weight}) {
        const auto found = m_fonts.find({face.path.native(), face.index, known});
        if (found != m_fonts.end()) return found->second;
    }
    auto file = FontFile::open(face.path, face.index, weight);
    if (!file) return nullptr;
    const bool isVariable = file->isVariable();
    auto font = std::make_shared<GlyphTable>(std::move(file));
    m_fonts.emplace(std::tuple(face.path.native(), face.index, isVariable ? weight : anyWeight), font);
    return font;
}

const GlyphTableRef& FontCatalog::fontFor(const CatalogFace& face, const CharacterNeeds& needs, const std::string& language,
                                          const std::string& script) {
    m_question = needs.characters;
    const auto font = reinterpret_cast<std::uintptr_t>(face.font.get());
    for (const std::uint64_t part :
         {std::uint64_t(font), std::uint64_t(font) >> 32, std::uint64_t(face.weight), std::uint64_t(needs.presentation)})
        m_question += char32_t(part);
    for (const char letter : script) m_question += char32_t(letter);
    for (const char letter : language) m_question += char32_t(letter);
    const auto found = m_answers.find(m_question);
    if (found != m_answers.end()) return found->second;
    return m_answers.emplace(m_question, findFontFor(face, needs, fallbackLanguage(language, script))).first->second;
}

GlyphTableRef FontCatalog::findFontFor(const CatalogFace& face, const CharacterNeeds& needs, const std::string& language) {
    const auto isShownByFace = [&](std::u32string_view characters) { return face.font && shows(face.font->file(), characters); };
    if (needs.presentation != Presentation::emoji && isShownByFace(needs.characters)) return face.font;
    GlyphTableRef font;
    if (needs.presentation != Presentation::text) font = emojiShowing(needs.characters);
    if (!font && isShownByFace(needs.characters)) font = face.font;
    if (!font) font = plainFontShowing(needs.characters, language, face.weight);
    if (!font && needs.presentation == Presentation::text) font = emojiShowing(needs.characters);
    if (!font && !m_hasReportedEmptySystem && m_system.isEmpty()) {
        m_hasReportedEmptySystem = true;
        report("No fonts are installed; characters that the module's own fonts lack are shown as boxes",
               "FontCatalog::findFontFor");
    }
    // A letter without its mark says more than nothing.
    const std::u32string_view base = std::u32string_view(needs.characters).substr(0, 1);
    if (!font && needs.characters.size() > 1 && !isShownByFace(base)) font = plainFontShowing(base, language, face.weight);
    return font ? font : face.font;
}

GlyphTableRef FontCatalog::emojiShowing(std::u32string_view characters) {
    for (const FaceFile& face : m_registered) {
        GlyphTableRef font = open(face, face.weight);
        if (font->file().hasPictures() && shows(font->file(), characters)) return font;
    }
    const std::optional<FaceFile> installed = m_system.emojiFor(characters);
    return installed ? open(*installed, installed->weight) : nullptr;
}

GlyphTableRef FontCatalog::plainFontShowing(std::u32string_view characters, const std::string& language, int weight) {
    const auto shown = [&](const FaceFile* face) -> GlyphTableRef {
        const GlyphTableRef font = face ? open(*face, weight) : nullptr;
        return font && !font->file().hasPictures() && shows(font->file(), characters) ? font : nullptr;
    };
    for (const FaceFile& face : m_registered)
        if (GlyphTableRef font = shown(nearestFace(m_registered, face.family, weight))) return font;
    if (GlyphTableRef font = shown(nearestReadable(m_shipped, defaultFamily, weight))) return font;
    if (const std::optional<FaceFile> installed = m_system.faceFor(characters, language, weight)) return open(*installed, weight);
    return nullptr;
}

} // namespace proupsells::rasterbackend

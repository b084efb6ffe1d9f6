// The fonts that stand for the registered faces, and for the characters that those lack.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "Backends/Raster/CharacterNeeds.hpp"
#include "Backends/Raster/FaceFile.hpp"
#include "Backends/Raster/FaceFolder.hpp"
#include "Backends/Raster/GlyphTable.hpp"
#include "Backends/Raster/SystemFonts.hpp"
#include "Platform/Graphics/Font.hpp"

namespace proupsells::rasterbackend {

using GlyphTableRef = std::shared_ptr<GlyphTable>;

// Where fonts come from, beside the ones that a host registers.
struct FontSources {
    std::filesystem::path shippedFaces = shippedFaceFolder();
    std::filesystem::path systemConfiguration; // a file for fontconfig; empty: the system's own
};

struct CatalogFace {
    GlyphTableRef font; // null where there is no font at all
    int weight = 400;
    double ascent = 0;  // ems
    double descent = 0; // ems
};

// Asks the faces that a host registered first, then the ones that travel with the module, and the system only where those do not
// do.
class FontCatalog {
public:
    explicit FontCatalog(FontSources sources);

    // Texts that are shaped from now on know the face. A file that is no font is reported and left out.
    void registerFace(std::string family, int weight, std::filesystem::path file);

    // The face's font, or that of the typeface that is shown instead; null asks for the default face. A family that is nowhere to
    // be found is reported once and replaced. The address is good until a face is registered or the typefaces change.
    const CatalogFace& face(const graphics::FontFace* face);

    // The font that shows a cluster: the face's own where that has it in some spelling, unless it is to be a coloured emoji; that,
    // too, where nothing shows it. `script` is a code such as "Deva"; with the language it says which form of a letter is wanted.
    const GlyphTableRef& fontFor(const CatalogFace& face, const CharacterNeeds& needs, const std::string& language,
                                 const std::string& script);

private:
    void followTypefaces();
    CatalogFace find(const std::string& family, int weight);
    // Null where the family is to be shown itself.
    GlyphTableRef fontInstead(const std::string& family, int weight);
    GlyphTableRef findFont(const std::string& family, int weight);
    // Null where there is none. Those that cannot be read are reported, each once, and taken out of `faces`.
    const FaceFile* nearestReadable(std::vector<FaceFile>& faces, const std::string& family, int weight);
    GlyphTableRef standIn(const std::string& missingFamily, int weight);
    void reportMissing(const std::string& family, const std::string& consequence);
    GlyphTableRef open(const FaceFile& face, int weight);
    GlyphTableRef findFontFor(const CatalogFace& face, const CharacterNeeds& needs, const std::string& language);
    GlyphTableRef emojiShowing(std::u32string_view characters);
    GlyphTableRef plainFontShowing(std::u32string_view characters, const std::string& language, int weight);

    std::vector<FaceFile> m_registered;      // those of the current typefaces first
    std::ptrdiff_t m_typefaceFileCount = 0;  // how many those are
    std::uint64_t m_typefaceChangeCount = 0; // when they were read
    std::vector<FaceFile> m_shipped;
    SystemFonts m_system;
    std::unordered_map<const graphics::FontFace*, CatalogFace> m_faces;
    // What was asked once is not asked again. A question is all that the answer hangs on, in one string.
    std::unordered_map<std::u32string, GlyphTableRef> m_answers;
    std::u32string m_question;
    std::map<std::tuple<std::filesystem::path::string_type, int, int>, GlyphTableRef>
        m_fonts; // by path, index and weight; 0 for any
    std::vector<std::string> m_missingFamilies;
    std::set<std::filesystem::path> m_unreadableFiles;
    bool m_hasReportedEmptySystem = false;
};

} // namespace proupsells::rasterbackend

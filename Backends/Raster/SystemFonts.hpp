// The fonts that the machine has.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Backends/Raster/FaceFile.hpp"

struct _FcConfig;
struct _FcFontSet;

namespace proupsells::rasterbackend {

// Asks fontconfig, which is not even started before the first question. Main thread only.
class SystemFonts {
public:
    // `configuration` is a file to be read in place of the system's own configuration; empty: the system's.
    explicit SystemFonts(std::filesystem::path configuration);
    ~SystemFonts();
    SystemFonts(const SystemFonts&) = delete;

    // Whether there is no font at all.
    bool isEmpty();
    // The upright faces of a family. Nothing where the family is not installed.
    std::vector<FaceFile> facesOf(const std::string& family);
    // The face that shows all these characters, best for the language and near the weight; of Noto Sans where that has them. Absent
    // where none does.
    std::optional<FaceFile> faceFor(std::u32string_view characters, const std::string& language, int weight);
    // The same among coloured emoji.
    std::optional<FaceFile> emojiFor(std::u32string_view characters);

private:
    struct FontSetDestroyer {
        void operator()(_FcFontSet* fonts) const;
    };
    using FontSetRef = std::unique_ptr<_FcFontSet, FontSetDestroyer>;

    _FcConfig* configuration();
    FontSetRef sorted(const std::string& family, const std::string& language, int weight, bool isColoured);

    std::filesystem::path m_file;
    _FcConfig* m_configuration = nullptr;
    std::map<std::pair<std::string, int>, FontSetRef> m_fallbacks; // by language and weight, the best one first
    FontSetRef m_emoji;
};

} // namespace proupsells::rasterbackend

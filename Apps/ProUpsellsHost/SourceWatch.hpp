// Follows the files that a session was made of.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/FileChanges.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"

namespace proupsells::hostprogram {

// Absent: not to be followed.
struct Sources {
    std::filesystem::path offers;
    std::optional<std::filesystem::path> strings; // a folder
    std::optional<std::filesystem::path> theme;
};

// What is new, and can be used.
struct SourceChange {
    std::unique_ptr<Json> offers; // null where they are as they were
    std::optional<std::filesystem::path> strings;
    std::optional<Theme> theme;
    std::vector<std::string> complaints; // of what cannot be used, as bad input is told of
};

// Is asked again and again, a few times within 0.2 s.
class SourceWatch {
public:
    // The files as they are now count as known.
    explicit SourceWatch(Sources sources);

    // A theme comes with its files as they are now, kept like translations.
    SourceChange look();

    // The translations as they are now, kept so that they can be used whatever becomes of the files. Throws InputError.
    static std::filesystem::path keptTranslations(const std::filesystem::path& folder);

private:
    Theme readTheme();

    Sources m_sources;
    FileChanges m_offers, m_strings, m_theme;
    FileChanges m_themeFiles; // those that the theme named when it could be read last
};

} // namespace proupsells::hostprogram

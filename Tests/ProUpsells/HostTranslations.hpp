// A host application with translations of its own.
#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <unistd.h>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"

namespace proupsells::tests {

// The host's bundle holds these texts, for the language that is set meanwhile; afterwards it holds none and English is set.
class HostTranslations {
public:
    explicit HostTranslations(const std::map<std::string, std::string>& texts, const std::string& language = "en") {
        static std::atomic<int> count = 0;
        m_folder = std::filesystem::temp_directory_path() /
                   ("proupsells-translations-" + std::to_string(::getpid()) + "-" + std::to_string(count++));
        std::filesystem::create_directories(m_folder / (language + ".lproj"));
        std::ofstream file(m_folder / (language + ".lproj") / "Localizable.strings");
        for (const auto& [key, text] : texts) file << '"' << key << "\" = \"" << text << "\";\n";
        file.close();
        foundation::Bundle::setMain(m_folder);
        foundation::Locale::setCurrent(foundation::Locale{language});
    }
    ~HostTranslations() {
        foundation::Bundle::setMain({});
        foundation::Locale::setCurrent(foundation::Locale{});
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }
    HostTranslations(const HostTranslations&) = delete;

private:
    std::filesystem::path m_folder;
};

} // namespace proupsells::tests

// The program's arguments.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/StartScreen.hpp"

namespace proupsells::hostprogram {

struct RunArguments {
    std::filesystem::path scenario;
    std::filesystem::path folder; // of snapshots
};

struct ShowArguments {
    std::optional<std::filesystem::path> offers; // absent: the sample offers
    Device device;
    std::vector<std::string> given; // the device's keys that were; what was not, the system may decide
    StartScreen start = StartScreen::paywall;
    std::optional<std::filesystem::path> recording; // the scenario to write; absent: nothing is recorded
    bool isWatching = false;                        // follows its files while the window is open
    std::optional<std::filesystem::path> theme;     // the device's, as a file
};

enum class TextsFormat { strings, pot, json };

struct TextsArguments {
    TextsFormat format = TextsFormat::strings;
};

struct ReadArguments {
    std::variant<StartScreen, std::filesystem::path> subject; // a screen, or a scenario
    std::optional<std::filesystem::path> offers;              // of a screen; absent: the sample offers
    Device device;                                            // of a screen
};

enum class LintFormat { text, json };

struct LintArguments {
    std::filesystem::path offers;
    std::optional<std::filesystem::path> strings;  // a folder of translations
    std::optional<std::filesystem::path> accepted; // findings that are known
    LintFormat format = LintFormat::text;
};

enum class AuditFormat { text, json, sarif };

struct AuditArguments {
    std::optional<std::filesystem::path> subject;  // offers or a scenario; absent: the sample offers
    std::optional<std::filesystem::path> matrix;   // which screens and how; absent: all
    std::optional<std::filesystem::path> accepted; // findings that are known
    std::optional<std::filesystem::path> strings;  // a folder of translations
    std::optional<std::filesystem::path> theme;
    AuditFormat format = AuditFormat::text;
};

struct GalleryArguments {
    std::optional<std::filesystem::path> offers;  // absent: the sample offers
    std::filesystem::path folder;                 // where the gallery goes
    std::optional<std::filesystem::path> former;  // the folder of another gallery, to compare with
    std::optional<std::filesystem::path> matrix;  // which screens and how; absent: all
    std::optional<std::filesystem::path> strings; // a folder of translations
    std::optional<std::filesystem::path> theme;
};

struct EvidenceArguments {
    std::filesystem::path scenario;
    std::filesystem::path file; // the document
};

// Only help was asked for, and has been printed.
struct HelpShown {};

using Arguments = std::variant<RunArguments, ShowArguments, TextsArguments, ReadArguments, LintArguments, AuditArguments,
                               GalleryArguments, EvidenceArguments, HelpShown>;

// Throws InputError with "command line" in the place of a file.
Arguments readCommandLine(int count, const char* const* arguments);

} // namespace proupsells::hostprogram

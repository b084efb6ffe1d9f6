#include "Apps/ProUpsellsHost/CommandLine.hpp"

#include <array>
#include <iostream>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Platform/Foundation/DecimalText.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr const char* place = "command line";

// The numbers between separators as a JSON array. Anything else stays a text, which the device's reader refuses.
Json numbersOr(const std::string& text, char separator) {
    Json numbers = Json::array();
    for (std::size_t start = 0;;) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        const auto reading = foundation::readDecimal(std::string_view(text).substr(start, end - start));
        if (!reading || reading->length != end - start) return text;
        numbers.push_back(reading->number);
        if (end == text.size()) return numbers;
        start = end + 1;
    }
}

Json text(const std::string& given) { return given; }
Json size(const std::string& given) { return numbersOr(given, 'x'); }
Json insets(const std::string& given) { return numbersOr(given, ','); }
Json number(const std::string& given) {
    const Json numbers = numbersOr(given, ' ');
    return numbers.is_array() ? numbers.front() : numbers;
}

Json flag(const std::string& given) { return given == "true"; }

// An option that stands for a key of the device.
struct DeviceOption {
    const char* name;
    const char* key;
    const char* help;
    Json (*read)(const std::string& given);
};

constexpr DeviceOption deviceOptions[] = {
    {"--size", "size", "The window in points, such as 375x800", size},
    {"--scale", "scale", "Pixels a point", number},
    {"--appearance", "appearance", "light or dark", text},
    {"--locale", "locale", "Language and region, such as de_AT", text},
    {"--layout-direction", "layoutDirection", "auto, ltr or rtl", text},
    {"--text-size", "textSize", "extraSmall ... accessibilityExtraExtraExtraLarge", text},
    {"--reduce-motion", "reduceMotion", "Less movement", flag},
    {"--safe-area", "safeArea", "Top, left, bottom, right in points, such as 0,0,34,0", insets},
    {"--strings", "strings", "A folder of <language>.lproj/Localizable.strings", text},
    {"--theme", "theme", "A file with colours, typefaces and pictures of a brand", text},
};

constexpr Word<StartScreen> startScreens[] = {
    {"paywall", StartScreen::paywall},
    {"comparison", StartScreen::comparison},
    {"store", StartScreen::store},
};

constexpr Word<TextsFormat> textsFormats[] = {
    {"strings", TextsFormat::strings},
    {"pot", TextsFormat::pot},
    {"json", TextsFormat::json},
};

struct ShowOptions {
    std::string offers, start = "paywall";
    std::array<std::string, std::size(deviceOptions)> device; // empty where an option is left out

    void addTo(CLI::App& command) {
        command.add_option("OFFERS.json", offers, "The offers; the sample ones when left out");
        for (std::size_t i = 0; i < device.size(); ++i) {
            const auto& [name, key, help, read] = deviceOptions[i];
            if (read == flag)
                command.add_flag(name, device[i], help);
            else
                command.add_option(name, device[i], help);
        }
        command.add_option("--start", start, "paywall, comparison or store");
    }

    ShowArguments read() const {
        Json values = Json::object();
        ShowArguments result;
        for (std::size_t i = 0; i < device.size(); ++i) {
            if (device[i].empty()) continue;
            values[deviceOptions[i].key] = deviceOptions[i].read(device[i]);
            result.given.push_back(deviceOptions[i].key);
        }
        const Json all{{"device", values}, {"start", start}};

        const JsonCursor cursor{all, place};
        if (!offers.empty()) result.offers = system::pathOf(offers);
        result.device = readDevice(cursor.at("device"), std::filesystem::current_path());
        result.start = cursor.at("start").oneOf(startScreens);
        return result;
    }
};

TextsArguments readTexts(const std::string& format) {
    const Json all{{"format", format}};
    return {JsonCursor{all, place}.at("format").oneOf(textsFormats)};
}

} // namespace

Arguments readCommandLine(int count, const char* const* arguments) {
    CLI::App app{"Shows the ProUpsells screens in a window, plays a script of them without one, or lists their texts.",
                 "proupsells"};
    app.require_subcommand(1);
    ShowOptions showOptions;
    CLI::App* show = app.add_subcommand("show", "A window; one line for every event on standard output until it closes");
    showOptions.addTo(*show);

    RunArguments runArguments{.folder = "."};
    std::string scenario, folder;
    CLI::App* run = app.add_subcommand("run", "A scripted run on a virtual clock, without a window");
    run->add_option("SCENARIO.json", scenario, "The script")->required();
    run->add_option("--out", folder, "Where pictures go; the current folder when left out");

    std::string format = "strings";
    CLI::App* texts = app.add_subcommand("texts", "Every text of the screens with its comment, for translators");
    texts->add_option("--format", format, "strings, pot or json");

    try {
        app.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        std::cout << (show->parsed() ? show : run->parsed() ? run : texts->parsed() ? texts : &app)->help();
        return HelpShown{};
    } catch (const CLI::ParseError& error) {
        throw InputError(place, "", std::string(error.what()) + ", expected arguments as `proupsells --help` lists them");
    }
    if (show->parsed()) return showOptions.read();
    if (texts->parsed()) return readTexts(format);
    runArguments.scenario = system::pathOf(scenario);
    if (!folder.empty()) runArguments.folder = system::pathOf(folder);
    return runArguments;
}

} // namespace proupsells::hostprogram

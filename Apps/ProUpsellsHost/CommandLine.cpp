#include "Apps/ProUpsellsHost/CommandLine.hpp"

#include <charconv>
#include <iostream>

#include <CLI/CLI.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr const char* place = "command line";

// Numbers between separators, as a JSON array; anything else is left a text, which the device's reader then refuses.
Json numbersOr(const std::string& text, char separator) {
    Json numbers = Json::array();
    for (std::size_t start = 0;;) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        double number = 0;
        const auto [stop, error] = std::from_chars(text.data() + start, text.data() + end, number);
        if (error != std::errc{} || stop != text.data() + end) return text;
        numbers.push_back(number);
        if (end == text.size()) return numbers;
        start = end + 1;
    }
}

struct ShowOptions {
    std::string offers, size, scale, appearance, locale, layoutDirection, textSize, safeArea, strings, start = "paywall";
    bool reduceMotion = false;

    void addTo(CLI::App& command) {
        command.add_option("OFFERS.json", offers, "The offers; the sample ones when left out");
        command.add_option("--size", size, "The window in points, such as 375x800");
        command.add_option("--scale", scale, "Pixels a point");
        command.add_option("--appearance", appearance, "light or dark");
        command.add_option("--locale", locale, "Language and region, such as de_AT");
        command.add_option("--layout-direction", layoutDirection, "auto, ltr or rtl");
        command.add_option("--text-size", textSize, "extraSmall ... accessibilityExtraExtraExtraLarge");
        command.add_flag("--reduce-motion", reduceMotion, "Less movement");
        command.add_option("--safe-area", safeArea, "Top, left, bottom, right in points, such as 0,0,34,0");
        command.add_option("--strings", strings, "A folder of <language>.lproj/Localizable.strings");
        command.add_option("--start", start, "paywall, comparison or store");
    }

    ShowArguments read() const {
        Json device = Json::object();
        if (!size.empty()) device["size"] = numbersOr(size, 'x');
        if (!scale.empty()) {
            const Json numbers = numbersOr(scale, ' ');
            device["scale"] = numbers.is_array() ? numbers.front() : numbers;
        }
        if (!appearance.empty()) device["appearance"] = appearance;
        if (!locale.empty()) device["locale"] = locale;
        if (!layoutDirection.empty()) device["layoutDirection"] = layoutDirection;
        if (!textSize.empty()) device["textSize"] = textSize;
        if (reduceMotion) device["reduceMotion"] = true;
        if (!safeArea.empty()) device["safeArea"] = numbersOr(safeArea, ',');
        if (!strings.empty()) device["strings"] = strings;
        const Json all{{"device", device}, {"start", start}};

        const JsonCursor cursor{all, place};
        ShowArguments result;
        if (!offers.empty()) result.offers = offers;
        result.device = readDevice(cursor.at("device"), std::filesystem::current_path());
        result.start = static_cast<StartScreen>(cursor.at("start").oneOf({"paywall", "comparison", "store"}));
        return result;
    }
};

} // namespace

Arguments readCommandLine(int count, const char* const* arguments) {
    CLI::App app{"Shows the ProUpsells screens in a window, or plays a script of them without one.", "proupsells"};
    app.require_subcommand(1);
    ShowOptions showOptions;
    CLI::App* show = app.add_subcommand("show", "A window; one line for every event on standard output until it closes");
    showOptions.addTo(*show);

    RunArguments runArguments{.folder = "."};
    std::string scenario, folder;
    CLI::App* run = app.add_subcommand("run", "A scripted run on a virtual clock, without a window");
    run->add_option("SCENARIO.json", scenario, "The script")->required();
    run->add_option("--out", folder, "Where pictures go; the current folder when left out");

    try {
        app.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        std::cout << (show->parsed() ? show : run->parsed() ? run : &app)->help();
        return HelpShown{};
    } catch (const CLI::ParseError& error) {
        throw InputError(place, "", std::string(error.what()) + ", expected arguments as `proupsells --help` lists them");
    }
    if (show->parsed()) return showOptions.read();
    runArguments.scenario = scenario;
    if (!folder.empty()) runArguments.folder = folder;
    return runArguments;
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsWindow/ShowCommand.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"
#include "Apps/ProUpsellsWindow/ShownSession.hpp"
#include "Apps/ProUpsellsWindow/WindowIcon.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int noDisplay = 3;

} // namespace

int showOffers(const ShowArguments& arguments) {
    const auto file = arguments.offers ? *arguments.offers : foundation::requiredResource("offers.json");
    const Json json = readJsonFile(file);
    const Offers offers = readOffers(JsonCursor{json, system::textOf(file)});
    const auto recording = arguments.recording
                               ? std::make_unique<Recording>(*arguments.recording, json, arguments.device, HostScreen::scene)
                               : nullptr;
    if (!qtbackend::Application::hasDisplay()) {
        std::cerr << "There is no display to show a window on; `proupsells run SCENARIO.json` plays a script without one.\n";
        return noDisplay;
    }
    const bool givesScale = std::find(arguments.given.begin(), arguments.given.end(), "scale") != arguments.given.end();
    qtbackend::Application application(
        {.name = ShownSession::title, .scale = givesScale ? std::optional(arguments.device.scale) : std::nullopt});
    QGuiApplication::setWindowIcon(windowIcon());
    Device device = desktopDevice(arguments, qtbackend::DesktopSettings::shared(), *QGuiApplication::primaryScreen());
    std::unique_ptr<SourceWatch> watch;
    if (arguments.isWatching) {
        const std::filesystem::path& strings = device.strings;
        watch =
            std::make_unique<SourceWatch>(Sources{file, strings.empty() ? std::nullopt : std::optional(strings), arguments.theme});
        if (!strings.empty()) device.strings = SourceWatch::keptTranslations(strings);
        device.theme = withKeptFiles(device.theme);
    }
    return ShownSession(arguments, offers, device, recording.get(), watch.get()).run(application);
}

} // namespace proupsells::hostprogram

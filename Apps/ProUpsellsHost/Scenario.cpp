#include "Apps/ProUpsellsHost/Scenario.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputReading.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Apps/ProUpsellsHost/StepReading.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

Offers readScenarioOffers(const JsonCursor& value, const std::filesystem::path& folder) {
    if (!value.isText()) {
        if (!value.isObject()) value.fail("no offers stand here, expected an object or a file name");
        return readOffers(value);
    }
    const std::filesystem::path given = system::pathOf(value.text());
    if (given.empty()) value.fail("the file name is empty, expected one relative to the scenario");
    return readOffersFile(given.is_absolute() ? given : folder / given);
}

} // namespace

Scenario readScenario(const std::filesystem::path& file) {
    const Json json = readJsonFile(file);
    const JsonCursor root{json, system::textOf(file)};
    root.expectObject({"offers", "device", "host", "inputs", "steps"});
    const std::filesystem::path folder = file.parent_path();

    Scenario scenario{.file = file};
    scenario.offers = readScenarioOffers(root.at("offers"), folder);
    if (root.has("device")) scenario.device = readDevice(root.at("device"), folder);
    if (root.has("host")) {
        const JsonCursor host = root.at("host");
        host.expectObject({"tracker", "delegate", "screen"});
        if (host.has("tracker")) scenario.hasTracker = host.at("tracker").boolean();
        if (host.has("delegate")) scenario.hasDelegate = host.at("delegate").boolean();
        if (host.has("screen")) scenario.screen = host.at("screen").oneOf(hostScreens);
    }
    Surroundings surroundings{folder, scenario.device};
    if (root.has("inputs")) scenario.inputs = readInputs(root.at("inputs"), surroundings);
    if (root.has("steps")) {
        for (const JsonCursor& step : root.at("steps").elements()) scenario.steps.push_back(readStep(step, surroundings));
        for (const Json& step : json["steps"]) scenario.stepTexts.push_back(step.dump());
    }
    return scenario;
}

} // namespace proupsells::hostprogram

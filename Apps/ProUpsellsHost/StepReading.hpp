// Reads the steps of a scenario, and the parts of them that stand elsewhere, too.
#pragma once

#include <filesystem>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Apps/ProUpsellsHost/StartScreen.hpp"

namespace proupsells::hostprogram {

// What reading a step may need besides the step.
struct Surroundings {
    std::filesystem::path folder;
    Device device; // as the steps before have left it
};

// Each throws InputError.
Step readStep(const JsonCursor& step, Surroundings& surroundings);
SetStep readSet(const JsonCursor& value, Surroundings& surroundings);
SendStep readSend(const JsonCursor& value);
host::Key readKey(const JsonCursor& value);
geometry::Point readPoint(const JsonCursor& value);
// What a "send" says that leads on from the paywall to another screen.
std::string_view sentToOpen(StartScreen screen);
// In seconds.
double readTime(const JsonCursor& value);

} // namespace proupsells::hostprogram

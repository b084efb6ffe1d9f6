// Any bytes as a file of offers and as a scenario: it is read, or one line says what is wrong with it. What can be read is played,
// and every event is a line of JSON.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Fuzz/InputFile.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Foundation/Format.hpp"

using namespace proupsells;
using namespace hostprogram;
using fuzz::require;

namespace {

fuzz::InputFile& inputFile() {
    static fuzz::InputFile file;
    return file;
}

// A scenario has many days, the tour of a fuzzer some seconds.
constexpr double longest_s = 4;
constexpr std::size_t mostSteps = 12, mostInputs = 100;
constexpr double longestSide = 1500;

// --- What stops the program as documented ---

// A text that reads as 0 or that is far off makes a percentage that cannot be shown.
bool hasPlainPrice(const SubscriptionOption& option) {
    const auto number = foundation::decimalNumber(option.price());
    return !number || (*number > 1e-6 && *number < 1e6);
}

// Plans that come later may not be fewer than those before, or the chosen one is gone.
class PlanRules {
public:
    bool allow(const std::vector<SubscriptionOption>& options) {
        const auto isShown = [](const SubscriptionOption& option) { return !option.isLifetime(); };
        const auto count = std::count_if(options.begin(), options.end(), isShown);
        const bool isAllowed = std::all_of(options.begin(), options.end(), hasPlainPrice) && (count == 0 || count >= m_most);
        m_most = std::max(m_most, count);
        return isAllowed;
    }
    bool allow(const std::optional<std::vector<SubscriptionOption>>& options) { return !options || allow(*options); }

private:
    std::ptrdiff_t m_most = 0;
};

bool canBePlayed(const Scenario& scenario) {
    PlanRules rules;
    if (!rules.allow(scenario.offers.options)) return false;
    for (const ScenarioInput& input : scenario.inputs) {
        if (const auto* set = std::get_if<SetStep>(&input.step); set && !rules.allow(set->options)) return false;
        if (const auto* offers = std::get_if<Offers>(&input.step); offers && !rules.allow(offers->options)) return false;
    }
    return std::all_of(scenario.steps.begin(), scenario.steps.end(), [&](const Step& step) {
        const auto* set = std::get_if<SetStep>(&step);
        return !set || rules.allow(set->options);
    });
}

// --- What takes long ---

void limit(Device& device) {
    if (device.size.width <= longestSide && device.size.height <= longestSide) return;
    device.size = {std::min(device.size.width, longestSide), std::min(device.size.height, longestSide)};
    device.safeArea = {};
}
void limit(SetStep& step) {
    if (step.device) limit(*step.device);
}
void limit(WaitStep& step) { step.duration_s = std::min(step.duration_s, longest_s); }
void limit(DragStep& step) { step.duration_s = std::min(step.duration_s, 0.3); }
void limit(PressStep& step) { step.duration_s = std::min(step.duration_s, 0.6); }
template <class Other>
void limit(Other&) {}

void shorten(Scenario& scenario) {
    limit(scenario.device);
    if (scenario.inputs.size() > mostInputs) scenario.inputs.resize(mostInputs);
    if (scenario.steps.size() > mostSteps) scenario.steps.resize(mostSteps);
    scenario.stepTexts.resize(scenario.steps.size());
    for (ScenarioInput& input : scenario.inputs) {
        input.recorded.time_s = std::min(input.recorded.time_s, longest_s);
        if (auto* size = std::get_if<host::SizeInput>(&input.recorded.input))
            size->size = {std::min(size->size.width, longestSide), std::min(size->size.height, longestSide)};
        std::visit([](auto& step) { limit(step); }, input.step);
    }
    for (Step& step : scenario.steps) std::visit([](auto& kind) { limit(kind); }, step);
}

// --- Playing ---

// What goes to standard error meanwhile, where expectations are told of.
class QuietErrors {
public:
    QuietErrors() : m_before(std::cerr.rdbuf(m_lines.rdbuf())) {}
    ~QuietErrors() { std::cerr.rdbuf(m_before); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    std::ostringstream m_lines;
    std::streambuf* m_before;
};

void requireEvents(const std::string& lines) {
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) require(Json::accept(line) && line.starts_with("{\"time\":"));
    require(lines.empty() || lines.back() == '\n');
}

void play(Scenario scenario) {
    if (!canBePlayed(scenario)) return;
    shorten(scenario);
    const QuietErrors quiet;
    std::ostringstream lines;
    {
        runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
        const auto log = std::make_shared<EventLog>(lines);
        HostSession session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, log);
        try {
            ScenarioRunner(scenario, loop, session, log, std::nullopt).run();
        } catch (const std::runtime_error& error) {
            inputFile().requireComplaint(error);
        }
        graphics::DisplayList frame;
        session.window().paint(frame);
    }
    requireEvents(lines.str());
}

// What is read, if it can be.
template <class Read>
auto readOrComplaint(Read read) -> std::optional<decltype(read())> {
    try {
        return read();
    } catch (const std::runtime_error& error) {
        inputFile().requireComplaint(error);
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::filesystem::path& file = inputFile().write(data, size);
    const auto scenario = readOrComplaint([&] { return readScenario(file); });
    if (scenario) play(*scenario);
    const auto offers = readOrComplaint([&] { return readOffersFile(file); });
    require(!scenario || !offers);
    if (!offers) return 0;
    Scenario shown{.file = file, .offers = *offers};
    shown.device.fonts = FontChoice::fixed;
    shown.steps = {DumpStep{}, SendStep{{UpsellViewModel::TapEvent::ComparePlans{}}}, DumpStep{}};
    play(std::move(shown));
    return 0;
}

#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Expectation.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Apps/ProUpsellsHost/ScreenDump.hpp"
#include "Apps/ProUpsellsHost/Snapshot.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::hostprogram {

using accessibility::SemanticNode;

namespace {

std::vector<const SemanticNode*> controlsIdentified(const SemanticNode& root, const std::string& identifier) {
    auto found = accessibility::findAllByIdentifier(root, identifier);
    std::erase_if(found, [](const SemanticNode* node) { return !node->isControl; });
    return found;
}

// The control's identifier, and the name that a person sees.
std::string describe(const SemanticNode& control) {
    const std::string name = accessibility::nameOf(control);
    if (control.identifier.empty()) return tooling::inQuotes(name);
    return tooling::escaped(control.identifier) + (name.empty() ? "" : " (" + tooling::inQuotes(name) + ")");
}

// What was revealed stands with its centre at the window's very edge; rounding must not carry it out of there.
geometry::Point withoutRounding(geometry::Point point) {
    constexpr double tolerance = 1e-6;
    if (point.x < 0 && point.x > -tolerance) point.x = 0;
    if (point.y < 0 && point.y > -tolerance) point.y = 0;
    return point;
}

} // namespace

ScenarioRunner::ScenarioRunner(const Scenario& scenario, runloop::MainRunLoop& loop, HostSession& session,
                               std::shared_ptr<EventLog> log, std::optional<std::filesystem::path> folder)
    : m_scenario(scenario), m_session(session), m_log(std::move(log)), m_folder(std::move(folder)), m_driver(loop, session) {}

bool ScenarioRunner::run(const Watch& watch) {
    m_session.present();
    m_driver.finishTransitions();
    if (watch) watch(nullptr);
    for (m_step = 0; m_step < m_scenario.steps.size(); ++m_step) {
        std::visit([this](const auto& step) { perform(step); }, m_scenario.steps[m_step]);
        m_driver.finishTransitions();
        if (watch) watch(&m_scenario.stepTexts[m_step]);
        // Whoever writes the lines says so at the end.
        if (m_log->isLost()) break;
    }
    return m_allHeld;
}

std::string ScenarioRunner::stepPointer() const { return "/steps/" + std::to_string(m_step); }

void ScenarioRunner::failTap(const std::string& complaint, const SemanticNode& root) const {
    std::string tappable;
    for (const SemanticNode* control : accessibility::controls(root)) tappable += "\n  " + describe(*control);
    const InputError error(system::textOf(m_scenario.file), stepPointer() + "/tap",
                           complaint + ", expected exactly one of the controls below");
    throw InputErrorWithList(error, tappable);
}

geometry::Point ScenarioRunner::pointOf(const TapTarget& target) {
    if (const auto* point = std::get_if<geometry::Point>(&target)) return *point;
    const auto* identifier = std::get_if<TapIdentifier>(&target);
    const std::string wanted = identifier ? identifier->identifier : std::get<TapText>(target).text;
    const auto find = [&](const SemanticNode& root) {
        return identifier ? controlsIdentified(root, wanted) : accessibility::controlsNamed(root, wanted);
    };

    const SemanticNode before = m_session.window().semanticTree();
    const auto found = find(before);
    const std::string what = identifier ? "the identifier \"" + wanted + "\"" : "the text \"" + wanted + "\"";
    if (found.empty()) failTap("no control has " + what, before);
    if (found.size() > 1) failTap(std::to_string(found.size()) + " controls have " + what, before);
    if (!found.front()->reveal) return found.front()->frame.center();

    found.front()->reveal();
    m_driver.wait(0);
    const SemanticNode after = m_session.window().semanticTree();
    const auto revealed = find(after);
    if (revealed.empty()) failTap("no control has " + what + " any more", after);
    return withoutRounding(revealed.front()->frame.center());
}

void ScenarioRunner::perform(const TapStep& step) { m_driver.tap(pointOf(step.target)); }

void ScenarioRunner::perform(const DragStep& step) { m_driver.drag(step.from, step.to, step.duration_s); }

void ScenarioRunner::perform(const PressStep& step) { m_driver.press(step.at, step.duration_s); }

void ScenarioRunner::perform(const KeyStep& step) { m_driver.press(step.key); }

void ScenarioRunner::perform(const WaitStep& step) { m_driver.wait(step.duration_s); }

void ScenarioRunner::perform(const SendStep& step) { m_session.send(step.event); }

void ScenarioRunner::perform(const SetStep& step) { m_session.set(step); }

void ScenarioRunner::perform(const ReleaseStep& step) { m_session.release(step.part); }

void ScenarioRunner::perform(const DumpStep&) {
    const SemanticNode root = m_session.window().semanticTree();
    const auto* controller = m_session.window().frontMostViewController();
    m_log->write("screen", {{"controller", controller ? controller->typeName() : ""},
                            {"size", toJson(m_session.device().size)},
                            {"root", toJson(root)}});
}

void ScenarioRunner::perform(const SnapshotStep& step) {
    if (!m_folder) return;
    const Device& device = m_session.device();
    const auto pixels = writeSnapshot(m_session.window(), device.size, device.scale, *m_folder, step.file);
    if (!pixels)
        throw InputError(system::textOf(m_scenario.file), stepPointer() + "/snapshot",
                         "\"" + system::textOf(*m_folder / system::pathOf(step.file)) +
                             "\" cannot be written, expected a folder that can be written to");
    m_log->write("snapshot", {{"file", step.file}, {"pixels", Json::array({pixels->width, pixels->height})}});
}

void ScenarioRunner::perform(const ExpectStep& step) {
    const auto complaint = contradiction(step, m_session.window().semanticTree());
    if (!complaint) return;
    m_allHeld = false;
    std::cerr << InputError(system::textOf(m_scenario.file), stepPointer() + "/expect", *complaint).what() << '\n';
}

} // namespace proupsells::hostprogram

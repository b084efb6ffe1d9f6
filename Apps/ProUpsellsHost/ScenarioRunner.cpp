#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Expectation.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Apps/ProUpsellsHost/ScreenDump.hpp"
#include "Apps/ProUpsellsHost/Snapshot.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/Quoted.hpp"
#include "Tooling/TapPoint.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::hostprogram {

ScenarioRunner::ScenarioRunner(const Scenario& scenario, runloop::MainRunLoop& loop, HostSession& session,
                               std::shared_ptr<EventLog> log, std::optional<std::filesystem::path> folder)
    : m_scenario(scenario), m_loop(loop), m_session(session), m_log(std::move(log)), m_folder(std::move(folder)),
      m_driver(loop, session.window()) {}

bool ScenarioRunner::run(const Watch& watch, const FrameWatch& frameWatch) {
    m_session.present();
    playInputs(frameWatch);
    // A recording ends in the middle of a movement if it was made to.
    if (m_scenario.inputs.empty() || !m_scenario.steps.empty()) m_driver.finishTransitions();
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

void ScenarioRunner::playInputs(const FrameWatch& watch) {
    host::InputPlayer player(m_session.window(), m_loop);
    for (const auto& [recorded, step] : m_scenario.inputs) {
        player.play(recorded);
        if (const auto* size = std::get_if<host::SizeInput>(&recorded.input)) m_session.noteSize(size->size, size->safeArea);
        if (watch && std::holds_alternative<host::FrameLook>(recorded.input)) watch(player.frame());
        std::visit([this](const auto& hostStep) { perform(hostStep); }, step);
    }
}

std::string ScenarioRunner::stepPointer() const { return "/steps/" + std::to_string(m_step); }

geometry::Point ScenarioRunner::pointOf(const TapTarget& target) {
    if (const auto* point = std::get_if<geometry::Point>(&target)) return *point;
    const auto* identifier = std::get_if<TapIdentifier>(&target);
    const std::string wanted = identifier ? identifier->identifier : std::get<TapText>(target).text;
    const auto find = identifier ? tooling::controlsIdentified(wanted) : tooling::controlsCalled(wanted);
    const auto found = tooling::tapPoint(m_session.window(), find, [this] { m_driver.wait(0); });
    if (found.point) return *found.point;

    std::string tappable;
    for (const std::string& control : found.controls) tappable += "\n  " + control;
    const std::string what = identifier ? "the identifier " : "the text ";
    throw InputErrorWithList(
        InputError(system::textOf(m_scenario.file), stepPointer() + "/tap",
                   found.complaint + " " + what + tooling::inQuotes(wanted) + ", expected exactly one of the controls below"),
        tappable);
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
    const accessibility::SemanticNode root = m_session.window().semanticTree();
    const auto* controller = m_session.window().frontMostViewController();
    m_log->write("screen", {{"controller", controller ? controller->typeName() : ""},
                            {"size", toJson(m_session.device().size)},
                            {"root", toJson(root)}});
}

void ScenarioRunner::perform(const SnapshotStep& step) {
    if (!m_folder) return;
    const Device& device = m_session.device();
    std::optional<rasterbackend::PixelSize> pixels;
    try {
        pixels = writeSnapshot(m_session.window(), device.size, device.scale, *m_folder, step.file);
    } catch (const std::bad_alloc&) {
        throw InputError(system::textOf(m_scenario.file), stepPointer() + "/snapshot",
                         "a picture of " + tooling::written(device.size.width) + " by " + tooling::written(device.size.height) +
                             " points at scale " + tooling::written(device.scale) +
                             " does not fit into memory, expected a smaller one");
    }
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

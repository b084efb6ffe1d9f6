// Plays a scenario on the virtual clock.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "Apps/ProUpsellsHost/EventLog.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Tooling/Driver.hpp"

namespace proupsells::hostprogram {

class ScenarioRunner {
public:
    // Called with the scenario's step that has just been performed; with null once the entry controller has appeared.
    using Watch = std::function<void(const std::string* stepText)>;

    // Snapshots go to `folder`, which is made when the first one is taken; none are taken without it.
    ScenarioRunner(const Scenario& scenario, runloop::MainRunLoop& loop, HostSession& session, std::shared_ptr<EventLog> log,
                   std::optional<std::filesystem::path> folder);

    // Presents the entry controller and runs the steps. Returns whether every expectation held; each that did not is one line on
    // standard error. Throws InputError for a step that cannot be done.
    bool run(const Watch& watch = {});

private:
    void perform(const TapStep&);
    void perform(const DragStep&);
    void perform(const PressStep&);
    void perform(const KeyStep&);
    void perform(const WaitStep&);
    void perform(const SendStep&);
    void perform(const SetStep&);
    void perform(const ReleaseStep&);
    void perform(const DumpStep&);
    void perform(const SnapshotStep&);
    void perform(const ExpectStep&);

    geometry::Point pointOf(const TapTarget& target);
    std::string stepPointer() const;

    const Scenario& m_scenario;
    HostSession& m_session;
    std::shared_ptr<EventLog> m_log;
    std::optional<std::filesystem::path> m_folder;
    tooling::Driver m_driver;
    std::size_t m_step = 0;
    bool m_allHeld = true;
};

} // namespace proupsells::hostprogram

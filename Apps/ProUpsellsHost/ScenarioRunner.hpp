// Plays a scenario on the virtual clock.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

#include "Apps/ProUpsellsHost/EventLog.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Platform/Host/InputPlayer.hpp"
#include "Tooling/Driver.hpp"

namespace proupsells::hostprogram {

class ScenarioRunner {
public:
    // Called with the scenario's step that has just been performed; with null once the entry controller has appeared, or the inputs
    // have been played.
    using Watch = std::function<void(const std::string* stepText)>;
    // Called with every frame that was recorded.
    using FrameWatch = std::function<void(const graphics::DisplayList& frame)>;

    // Snapshots go to `folder`, which is made when the first one is taken; none are taken without it.
    ScenarioRunner(const Scenario& scenario, runloop::MainRunLoop& loop, HostSession& session, std::shared_ptr<EventLog> log,
                   std::optional<std::filesystem::path> folder);

    // Presents the entry controller, plays the inputs and runs the steps. Returns whether every expectation held; each that did not
    // is one line on standard error. Throws InputError for a step that cannot be done.
    bool run(const Watch& watch = {}, const FrameWatch& frameWatch = {});

private:
    void playInputs(const FrameWatch& watch);
    void perform(std::monostate) {}
    void perform(const Offers& offers) { m_session.replaceOffers(offers); }
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
    runloop::MainRunLoop& m_loop;
    HostSession& m_session;
    std::shared_ptr<EventLog> m_log;
    std::optional<std::filesystem::path> m_folder;
    tooling::Driver m_driver;
    std::size_t m_step = 0;
    bool m_allHeld = true;
};

} // namespace proupsells::hostprogram

#include "Platform/RunLoop/MainRunLoop.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Commons/ScopeEnd.hpp"
#include "Platform/RunLoop/ForwardTime.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/RunLoop/SteppedClock.hpp"
#include "Platform/RunLoop/UpdateQueue.hpp"
#include "Platform/RunLoop/WorkQueue.hpp"

namespace proupsells::runloop {

namespace {

// Far beyond what a screen causes; only work that schedules itself again without a delay gets there.
constexpr int maximumTurnsOfOneMoment = 100'000;

// Oldest first.
std::vector<MainRunLoop*>& livingLoops() {
    static std::vector<MainRunLoop*> loops;
    return loops;
}

} // namespace

struct MainRunLoop::State {
    double clock_s() { return time.read_s(*clock); }

    std::shared_ptr<Clock> clock;
    ForwardTime time;
    VirtualClock* virtualClock = nullptr; // null on a real clock
    SteppedClock* steppedClock = nullptr; // null unless the virtual clock is one
    WorkQueue work;
    UpdateQueue updates;
    std::optional<double> turn_s;
    std::vector<std::shared_ptr<Timer>> fired; // repeating timers of the current turn
    std::function<void()> wakeUp;
};

MainRunLoop::MainRunLoop(std::shared_ptr<Clock> clock) : m_state(std::make_unique<State>()) {
    if (!clock) commons::fatalError("A main run loop needs a clock");
    MainActor::adoptCurrentThread();
    MainActor::assertIsolated();
    m_state->virtualClock = dynamic_cast<VirtualClock*>(clock.get());
    m_state->steppedClock = dynamic_cast<SteppedClock*>(clock.get());
    if (runsOnRealTime() && exists() && main().runsOnRealTime())
        commons::fatalError(
            "A main run loop runs already, and there can be one only: use runloop::MainRunLoop::main() in place of a "
            "second one");
    m_state->clock = std::move(clock);
    livingLoops().push_back(this);
}

MainRunLoop::~MainRunLoop() {
    if (isInTurn()) commons::fatalError("A main run loop was destroyed inside its own turn");
    m_state->wakeUp = nullptr;
    // What the callbacks hold may still ask for the main loop while it is let go.
    { const WorkQueue dropped = std::exchange(m_state->work, {}); }
    std::erase(livingLoops(), this);
}

MainRunLoop& MainRunLoop::main() {
    if (livingLoops().empty())
        commons::fatalError("There is no main run loop: call proupsells::standard::install(), or create a runloop::MainRunLoop");
    return *livingLoops().back();
}

bool MainRunLoop::exists() { return !livingLoops().empty(); }

double MainRunLoop::now_s() const { return m_state->turn_s ? *m_state->turn_s : m_state->clock_s(); }

bool MainRunLoop::isInTurn() const { return m_state->turn_s.has_value(); }

std::shared_ptr<Timer> MainRunLoop::schedule(double delay_s, std::function<void()> callback) {
    auto timer = std::make_shared<Timer>();
    timer->m_callback = std::move(callback);
    timer->m_due_s = now_s() + (delay_s > 0 ? delay_s : 0);
    return enqueue(std::move(timer));
}

std::shared_ptr<Timer> MainRunLoop::scheduleRepeating(double interval_s, std::function<void()> callback) {
    if (!(interval_s > 0) || !std::isfinite(interval_s))
        commons::fatalError("The interval of a repeating timer must be positive and finite");
    auto timer = std::make_shared<Timer>();
    timer->m_callback = std::move(callback);
    timer->m_start_s = now_s();
    timer->m_interval_s = interval_s;
    timer->m_tick = 1;
    timer->m_due_s = timer->m_start_s + interval_s;
    return enqueue(std::move(timer));
}

std::shared_ptr<Timer> MainRunLoop::enqueue(std::shared_ptr<Timer> timer) {
    MainActor::assertIsolated();
    const auto previous_s = nextDueTime_s();
    m_state->work.push(timer);
    wakeUpIfEarlierThan(previous_s);
    return timer;
}

void MainRunLoop::requestUpdate(const std::weak_ptr<UpdateClient>& client) {
    MainActor::assertIsolated();
    const auto previous_s = nextDueTime_s();
    m_state->updates.add(client, now_s());
    wakeUpIfEarlierThan(previous_s);
}

std::optional<double> MainRunLoop::nextDueTime_s() const {
    double next_s = m_state->updates.earliestDue_s().value_or(std::numeric_limits<double>::infinity());
    if (const Timer* timer = m_state->work.first()) next_s = std::min(next_s, timer->m_due_s);
    return std::isfinite(next_s) ? std::optional(next_s) : std::nullopt;
}

std::optional<double> MainRunLoop::nextDueDelay_s() const {
    const auto next_s = nextDueTime_s();
    if (!next_s) return std::nullopt;
    return std::max(0.0, *next_s - (m_state->steppedClock ? m_state->steppedClock->nextStep_s() : now_s()));
}

std::size_t MainRunLoop::waitingTimerCount() const { return m_state->work.validCount(); }

void MainRunLoop::setWakeUpHandler(std::function<void()> handler) {
    m_state->wakeUp = std::move(handler);
    wakeUpIfEarlierThan(std::nullopt);
}

bool MainRunLoop::hasWakeUpHandler() const { return m_state->wakeUp != nullptr; }

bool MainRunLoop::runsOnRealTime() const { return !m_state->virtualClock || m_state->steppedClock; }

void MainRunLoop::wakeUpIfEarlierThan(std::optional<double> previous_s) {
    if (!m_state->wakeUp || isInTurn()) return;
    const auto next_s = nextDueTime_s();
    if (!next_s || (previous_s && *previous_s <= *next_s)) return;
    // A copy, because the handler may replace itself.
    const auto wakeUp = m_state->wakeUp;
    wakeUp();
}

void MainRunLoop::runDueTurns() {
    if (isInTurn()) return;
    if (m_state->steppedClock) return runUntil(m_state->steppedClock->nextStep_s());
    runTurnsUntil(m_state->clock_s());
    wakeUpIfEarlierThan(std::nullopt);
}

void MainRunLoop::settle() {
    if (isInTurn()) commons::fatalError("A main run loop cannot settle inside its own turn");
    runTurnsUntil(m_state->clock_s());
    wakeUpIfEarlierThan(std::nullopt);
}

void MainRunLoop::runUntil(double time_s) {
    if (isInTurn()) commons::fatalError("A main run loop cannot be run inside its own turn");
    if (!m_state->virtualClock) commons::fatalError("Only a virtual clock can be moved");
    if (!std::isfinite(time_s)) commons::fatalError("A main run loop can only be run until a finite time");
    runTurnsUntil(time_s);
    m_state->virtualClock->advanceTo(time_s);
    wakeUpIfEarlierThan(std::nullopt);
}

void MainRunLoop::runTurnsUntil(double limit_s) {
    MainActor::assertIsolated();
    const commons::OnException wake([this] { wakeUpIfEarlierThan(std::nullopt); });
    double moment_s = 0;
    int turnsOfThisMoment = 0;
    while (const auto next_s = nextDueTime_s()) {
        if (*next_s > limit_s) break;
        turnsOfThisMoment = *next_s == moment_s ? turnsOfThisMoment + 1 : 1;
        moment_s = *next_s;
        if (turnsOfThisMoment > maximumTurnsOfOneMoment)
            commons::fatalError("The main run loop does not get past one moment: work keeps scheduling work without a delay");
        runTurn(moment_s);
    }
}

void MainRunLoop::runTurn(double moment_s) {
    if (m_state->virtualClock) m_state->virtualClock->advanceTo(moment_s);
    m_state->turn_s = moment_s;
    const commons::Finally end([this] {
        rearmFiredTimers();
        m_state->turn_s.reset();
    });
    const std::uint64_t firstOfNextTurn = m_state->work.nextSequence();
    for (const Timer* timer = m_state->work.first(); timer && timer->m_due_s <= moment_s && timer->m_sequence < firstOfNextTurn;
         timer = m_state->work.first())
        fire(m_state->work.pop());
    int updates = 0;
    while (const auto client = m_state->updates.takeDue(moment_s)) {
        if (++updates > maximumTurnsOfOneMoment)
            commons::fatalError("The main run loop does not get past one turn: updates keep requesting updates");
        client->update();
    }
}

void MainRunLoop::fire(const std::shared_ptr<Timer>& timer) {
    const bool repeats = timer->m_interval_s > 0;
    if (repeats) m_state->fired.push_back(timer);
    if (!repeats) timer->m_isValid = false;
    // Moved out, so that the callback survives its own timer's invalidation.
    std::function<void()> callback = std::exchange(timer->m_callback, nullptr);
    const commons::Finally restore([&] {
        if (timer->isValid()) timer->m_callback = std::move(callback);
    });
    if (callback) callback();
}

void MainRunLoop::rearmFiredTimers() {
    for (auto& timer : m_state->fired) {
        if (!timer->isValid()) continue;
        timer->advanceOnGrid(m_state->clock_s());
        m_state->work.push(std::move(timer));
    }
    m_state->fired.clear();
}

} // namespace proupsells::runloop

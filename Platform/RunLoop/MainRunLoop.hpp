// The main run loop: everything that happens at a time happens here, in one order, on any clock.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

#include "Platform/RunLoop/Clock.hpp"
#include "Platform/RunLoop/Timer.hpp"
#include "Platform/RunLoop/UpdateClient.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Orders work by (due time, sequence number). A turn is the due callbacks of one moment, then the updates that they
// caused; repeating timers that fired are re-armed at the turn's end, on their own grid, with new sequence numbers.
// All of it, scheduling included, belongs to the main thread. What a callback or an update throws ends the turn and passes through;
// the rest of the moment waits for the next run.
class PROUPSELLS_EXPORT MainRunLoop {
public:
    // Stops the program on a real clock while another loop runs on one. Loops on virtual clocks stand in for the ones before them.
    explicit MainRunLoop(std::shared_ptr<Clock> clock);
    // Drops what waits. Stops the program inside a turn of its own.
    ~MainRunLoop();
    MainRunLoop(const MainRunLoop&) = delete;
    MainRunLoop& operator=(const MainRunLoop&) = delete;

    // The newest living loop of the process; stops the program when there is none.
    static MainRunLoop& main();
    // Whether main() would find one.
    static bool exists();

    // Inside a callback or an update: the due time of the turn, however late the clock is. Outside: the clock's time.
    double now_s() const;
    // Whether a callback or an update runs at present.
    bool isInTurn() const;

    // Counts from now_s(). A negative or not-a-number delay counts as 0, an infinite one never comes; work due now runs in a
    // later turn of the same moment.
    std::shared_ptr<Timer> schedule(double delay_s, std::function<void()> callback);
    // First fires one interval from now_s(), then on the grid start + n × interval. After a stall of the clock it fires once, for
    // the earliest point that was missed, and goes on with the first point that still lies ahead. The interval must be positive
    // and finite; otherwise stops the program.
    std::shared_ptr<Timer> scheduleRepeating(double interval_s, std::function<void()> callback);

    // Updates run in the order of the first request of a turn; a request made during the updates is served in the same turn,
    // after those already waiting. The client is held weakly. Outside a turn, the request makes a turn due now.
    void requestUpdate(const std::weak_ptr<UpdateClient>& client);

    // When the next turn is due; absent when nothing waits.
    std::optional<double> nextDueTime_s() const;
    // Seconds from now until then, 0 when it has come; for whoever waits on a real clock.
    std::optional<double> nextDueDelay_s() const;
    // How many valid timers wait, each repeating one once; for whoever looks for those that nobody needs any more.
    std::size_t waitingTimerCount() const;
    // Runs every turn due up to the clock's time as it is on entry. A SteppedClock moves on first. Inside a turn (a nested event
    // loop of the host) it does nothing; the outer call goes on afterwards.
    void runDueTurns();
    // Virtual clock only: moves through every turn due up to and including `time_s`, then stands there. The time must be finite.
    // Stops the program inside a turn.
    void runUntil(double time_s);
    // Runs the updates and work due at this very moment, without letting time pass: all of runUntil(now_s()). Stops the program
    // inside a turn.
    void settle();

    // Told outside turns whenever nextDueTime_s() may have become earlier; a backend re-arms its wake-up there. Told at once when
    // something waits already.
    void setWakeUpHandler(std::function<void()> handler);
    // Whether somebody drives the loop.
    bool hasWakeUpHandler() const;
    // False on a virtual clock, unless it follows a real one.
    bool runsOnRealTime() const;

private:
    struct State;
    void runTurnsUntil(double limit_s);
    void runTurn(double moment_s);
    void fire(const std::shared_ptr<Timer>& timer);
    void rearmFiredTimers();
    std::shared_ptr<Timer> enqueue(std::shared_ptr<Timer> timer);
    void wakeUpIfEarlierThan(std::optional<double> previous_s);

    std::unique_ptr<State> m_state;
};

} // namespace proupsells::runloop

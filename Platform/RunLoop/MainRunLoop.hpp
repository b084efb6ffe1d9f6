// The main run loop: everything that happens at a time happens here, in one order, on any clock.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace runloop {

// Tells the time that the loop runs on, in seconds. Never goes back.
class Clock {
public:
    virtual ~Clock() = default;
    virtual double now_s() const = 0;
};

// Stands still until it is told to move.
class VirtualClock final : public Clock {
public:
    double now_s() const override { return m_now_s; }
    void advanceTo(double time_s);

private:
    double m_now_s = 0;
};

// Seconds since its creation.
class RealClock final : public Clock {
public:
    RealClock();
    double now_s() const override;

private:
    std::int64_t m_start_ns;
};

// One piece of scheduled work, once or repeating. Letting go of the pointer does not cancel it.
class Timer {
public:
    // A one-shot is valid until it has fired, a repeating timer until it is invalidated.
    bool isValid() const { return m_isValid; }
    void invalidate() { m_isValid = false; m_callback = nullptr; }

private:
    friend class MainRunLoop;
    std::function<void()> m_callback;
    double m_due_s = 0;
    double m_start_s = 0;
    double m_interval_s = 0; // 0 for a one-shot
    std::uint64_t m_tick = 0;
    std::uint64_t m_sequence = 0;
    bool m_isValid = true;
};

// Something that is brought up to date at the end of a turn, at most once a turn for each request.
class UpdateClient {
public:
    virtual ~UpdateClient() = default;
    virtual void update() = 0;
};

// Orders work by (due time, sequence number). A turn is the due callbacks of one moment, then the updates that they
// caused; repeating timers that fired are re-armed at the turn's end, on their own grid, with new sequence numbers.
class MainRunLoop {
public:
    explicit MainRunLoop(std::shared_ptr<Clock> clock);
    ~MainRunLoop();
    MainRunLoop(const MainRunLoop&) = delete;
    MainRunLoop& operator=(const MainRunLoop&) = delete;

    // The newest living loop of the process; stops the program when there is none.
    static MainRunLoop& main();
    static bool exists();

    // Inside a callback or an update: the due time of the turn. Outside: the clock's time.
    double now_s() const;

    // Counts from now_s(). A negative or not-a-number delay counts as 0; work due now runs in a later turn of the same moment.
    std::shared_ptr<Timer> schedule(double delay_s, std::function<void()> callback);
    // First fires one interval from now_s(). The interval must be positive; otherwise stops the program.
    std::shared_ptr<Timer> scheduleRepeating(double interval_s, std::function<void()> callback);

    // Updates run in the order of the first request of a turn; a request made during the updates is served in the same turn,
    // after those already waiting. The client is held weakly. Outside a turn, the request makes a turn due now.
    void requestUpdate(const std::weak_ptr<UpdateClient>& client);

    // When the next turn is due; absent when nothing waits.
    std::optional<double> nextDueTime_s() const;
    // Runs every turn due up to the clock's time.
    void runDueTurns();
    // Virtual clock only: moves through every turn due up to and including `time_s`, then stands there.
    void runUntil(double time_s);
    // Runs the updates and work due at this very moment, without letting time pass: all of runUntil(now_s()).
    void settle();

    // Told whenever nextDueTime_s() may have become earlier; a backend re-arms its wake-up there.
    void setWakeUpHandler(std::function<void()> handler);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace runloop

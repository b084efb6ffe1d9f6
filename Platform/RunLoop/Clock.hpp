// Where the run loop's time comes from.
#pragma once

#include <cstdint>

#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Tells the time that the loop runs on, in seconds. It should never go back; where it does, the loop goes on from where it was.
class PROUPSELLS_EXPORT Clock {
public:
    virtual ~Clock() = default;
    // Seconds since some fixed moment of the clock's own.
    virtual double now_s() const = 0;
};

// Starts at 0 and stands still until it is told to move.
class PROUPSELLS_EXPORT VirtualClock : public Clock {
public:
    double now_s() const override { return m_now_s; }
    // A time that has passed already (or is not a number) changes nothing.
    void advanceTo(double time_s);

private:
    double m_now_s = 0;
};

// Seconds since its creation.
class PROUPSELLS_EXPORT RealClock final : public Clock {
public:
    RealClock();
    double now_s() const override;

private:
    std::int64_t m_start_ns;
};

} // namespace proupsells::runloop

// Time that has passed, and the processor time that all threads of the process have used.
#pragma once

namespace peers {

// The processor time of the process since it began.
double processCpu_ms();

// Since just before the process was started: the environment's PEER_T0, nanoseconds of CLOCK_MONOTONIC. Means nothing without it.
double sinceProcessStart_ms();

// Runs from where it is made.
class Stopwatch {
public:
    Stopwatch();

    double wall_ms() const;
    double cpu_ms() const;

private:
    double m_wallStart_ms;
    double m_cpuStart_ms;
};

} // namespace peers

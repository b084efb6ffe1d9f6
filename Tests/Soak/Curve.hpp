// What a long run takes of the machine, point after point.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace proupsells::soak {

// At one point of a run.
struct Measure {
    double at = 0; // cycles, hours or deeds
    std::size_t liveBlocks = 0;
    std::size_t liveBytes = 0;
    std::size_t resident_pages = 0; // 0 under a sanitizer, which has memory of its own
    std::size_t timers = 0;
    std::size_t commands = 0; // of the last frame
};

// The allocator may still find places for its blocks that it has not used before. One lost block of the smallest size a cycle would
// take five times as much in 10,000 cycles; what is lost of our own memory is counted to the byte.
inline constexpr std::size_t toleratedPages = 16;

class Curve {
public:
    // `subject` is what is run, `unit` what points are counted in.
    Curve(std::string subject, std::string unit);

    // Whether one of ten evenly spread points is due after `step` of `steps`.
    static bool isDue(std::int64_t step, std::int64_t steps) { return step * pointCount % steps < pointCount; }

    // Measures now. Takes no memory to stay.
    void add(double at, std::size_t timers, std::size_t commands);

    // How many more pages the last point has than the first one; 0 for fewer.
    std::size_t pagesGained() const;

    // Prints the curve, and adds it to the file of this run if there is one.
    void tell() const;

private:
    static constexpr int pointCount = 10;

    std::string m_subject, m_unit;
    std::vector<Measure> m_points;
};

} // namespace proupsells::soak

// How far something has come, for a person who waits for it.
#pragma once

#include <chrono>

namespace proupsells::hostprogram {

// One line on standard error with the share and the time that is left, drawn again as it changes, and gone with the object. Nothing
// at all where standard error is no terminal.
class ProgressBar {
public:
    // `total` counts whatever tells how long it takes.
    explicit ProgressBar(double total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;

    void advance(double done);

private:
    void draw() const;

    bool m_isSeen;
    double m_total;
    double m_done = 0;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

} // namespace proupsells::hostprogram

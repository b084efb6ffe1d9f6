// How far something has come, for a person who waits for it.
#pragma once

#include <iosfwd>
#include <memory>

#include "Platform/RunLoop/Clock.hpp"

namespace proupsells::hostprogram {

// One line on standard error with the share and the time that is left, drawn again as it changes, and gone with the object. Nothing
// at all where standard error is no terminal.
class ProgressBar {
public:
    // `total`, more than 0, counts whatever tells how long it takes.
    explicit ProgressBar(double total);
    // The same on any terminal, which must live longer, and by any clock. Nothing is seen where the terminal is null.
    ProgressBar(double total, std::ostream* terminal, std::shared_ptr<const runloop::Clock> clock);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;

    void advance(double done);

private:
    void draw() const;

    double m_total;
    double m_done = 0;
    std::ostream* m_terminal;
    std::shared_ptr<const runloop::Clock> m_clock;
    double m_begin_s;
};

} // namespace proupsells::hostprogram

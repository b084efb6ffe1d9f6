#include "Apps/ProUpsellsHost/ProgressBar.hpp"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>
#include <utility>

#include "Platform/System/Terminal.hpp"

namespace proupsells::hostprogram {

namespace {

// To the beginning of the line, and nothing in it.
constexpr const char* emptyLine = "\r\033[K";

std::string timeText(double time_s) {
    const int whole_s = int(std::ceil(time_s));
    const int seconds = whole_s % 60;
    return std::to_string(whole_s / 60) + (seconds < 10 ? ":0" : ":") + std::to_string(seconds);
}

} // namespace

ProgressBar::ProgressBar(double total)
    : ProgressBar(total, system::errorsGoToTerminal() ? &std::cerr : nullptr, std::make_shared<runloop::RealClock>()) {}

ProgressBar::ProgressBar(double total, std::ostream* terminal, std::shared_ptr<const runloop::Clock> clock)
    : m_total(total), m_terminal(terminal), m_clock(std::move(clock)), m_begin_s(m_clock->now_s()) {
    draw();
}

ProgressBar::~ProgressBar() {
    if (m_terminal) *m_terminal << emptyLine << std::flush;
}

void ProgressBar::advance(double done) {
    m_done += done;
    draw();
}

void ProgressBar::draw() const {
    if (!m_terminal) return;
    constexpr int width = 32;
    const double share = std::min(1.0, m_done / m_total);
    const int filled = int(share * width);
    std::string line = emptyLine;
    for (int i = 0; i < width; ++i) line += i < filled ? "█" : "░";
    line += " " + std::to_string(int(share * 100)) + " %";
    if (share > 0) line += ", " + timeText((m_clock->now_s() - m_begin_s) * (1 - share) / share) + " left";
    *m_terminal << line << std::flush;
}

} // namespace proupsells::hostprogram

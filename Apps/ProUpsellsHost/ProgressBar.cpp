#include "Apps/ProUpsellsHost/ProgressBar.hpp"

#include <cmath>
#include <iostream>
#include <string>

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

ProgressBar::ProgressBar(double total) : m_isSeen(system::errorsGoToTerminal()), m_total(total) { draw(); }

ProgressBar::~ProgressBar() {
    if (m_isSeen) std::cerr << emptyLine << std::flush;
}

void ProgressBar::advance(double done) {
    m_done += done;
    draw();
}

void ProgressBar::draw() const {
    if (!m_isSeen || m_total <= 0) return;
    constexpr int width = 32;
    const double share = std::min(1.0, m_done / m_total);
    const int filled = int(share * width);
    std::string line = emptyLine;
    for (int i = 0; i < width; ++i) line += i < filled ? "█" : "░";
    line += " " + std::to_string(int(share * 100)) + " %";
    if (m_done > 0) {
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - m_begin;
        line += ", " + timeText(elapsed.count() * (1 - share) / share) + " left";
    }
    std::cerr << line << std::flush;
}

} // namespace proupsells::hostprogram

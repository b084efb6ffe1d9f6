#include "Common/Report.hpp"

#include <cstdio>
#include <utility>

namespace peers {

void Report::addKey(std::string_view key) {
    if (!m_members.empty() && m_members.back() != '{') m_members += ',';
    m_members.append("\"").append(key).append("\":");
}

void Report::addNumber(double number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.7g", number);
    m_members += text;
}

void Report::add(std::string_view key, double figure) {
    addKey(key);
    addNumber(figure);
}

void Report::add(std::string_view key, const Series& series) {
    addKey(key);
    m_members += '{';
    add("n", double(series.count()));
    for (const auto& [name, share] : {std::pair{"min", 0.0}, {"p50", 0.5}, {"p99", 0.99}, {"max", 1.0}})
        add(name, series.quantile(share));
    add("mean", series.mean());
    m_members += '}';
}

void Report::add(const Memory& memory) {
    add("hwm_kb", double(memory.peak_kb));
    add("rss_kb", double(memory.resident_kb));
    add("pss_kb", double(memory.proportional_kb));
    add("priv_kb", double(memory.privateDirty_kb));
}

void Report::addGrowth(const Memory& before, const Memory& after) {
    add("added_pss_kb", double(after.proportional_kb - before.proportional_kb));
    add("added_priv_kb", double(after.privateDirty_kb - before.privateDirty_kb));
}

void Report::print() const {
    std::printf("{%s}\n", m_members.c_str());
    std::fflush(stdout);
}

} // namespace peers

// The one line of JSON that a program prints about itself.
#pragma once

#include <string>
#include <string_view>

#include "Common/Memory.hpp"
#include "Common/Series.hpp"

namespace peers {

class Report {
public:
    void add(std::string_view key, double figure);
    // An object of n, min, p50, p99, max and mean.
    void add(std::string_view key, const Series& series);
    // hwm_kb, rss_kb, pss_kb and priv_kb.
    void add(const Memory& memory);
    // added_pss_kb and added_priv_kb.
    void addGrowth(const Memory& before, const Memory& after);

    // On standard output.
    void print() const;

private:
    void addKey(std::string_view key);
    void addNumber(double number);

    std::string m_members;
};

} // namespace peers

// Every audit of a test's screen.
#pragma once

#include <vector>

#include "ScreenTest/ScreenMatchers.hpp"

namespace proupsells::screentest {

// What is wrong and not accepted.
std::vector<tooling::Finding> audited(const TestScreen& screen, const AuditScope& scope);

} // namespace proupsells::screentest

// Include this in a test program: a log record that no test took then fails the test that caused it.
#pragma once

#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"

namespace proupsells::tests {

inline void failOnUnexpectedLog() {
    headless::TestBed::setUnexpectedLogHandler([](const commons::LogRecord& record) {
        ADD_FAILURE() << "Unexpected log record: " << record.message << "\nlogged by " << record.function;
    });
}

inline const bool failsOnUnexpectedLog = [] {
    failOnUnexpectedLog();
    return true;
}();

} // namespace proupsells::tests

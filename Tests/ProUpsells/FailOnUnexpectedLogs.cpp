// A log line that no test expects is a failure.
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"

using namespace proupsells;

namespace {

class FailOnUnexpectedLogs : public ::testing::Environment {
public:
    void SetUp() override {
        headless::TestBed::setUnexpectedLogHandler(
            [](const commons::LogRecord& record) { ADD_FAILURE() << "unexpected log line: " << record.message; });
    }
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new FailOnUnexpectedLogs);

} // namespace

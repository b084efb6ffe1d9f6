#include <gmock/gmock.h>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Tests/Support/LogRecorder.hpp"

using namespace proupsells;

using commons::DefaultLogger;
using commons::LogRecord;
using testing::ElementsAre;
using testing::EndsWith;

namespace {

TEST(DefaultLogger, HandsTheWholeRecordToTheSink) {
    tests::LogRecorder log;

    const unsigned line = __LINE__ + 1;
    DefaultLogger::shared().log(DefaultLogger::errorSeverity, "No plan", "init(options:)");

    ASSERT_EQ(log.records().size(), 1u);
    const LogRecord& record = log.records().front();
    EXPECT_EQ(record.severity, 4);
    EXPECT_EQ(record.message, "No plan");
    EXPECT_EQ(record.function, "init(options:)");
    EXPECT_THAT(record.file, EndsWith("DefaultLoggerTests.cpp"));
    EXPECT_EQ(record.line, line);
}

TEST(DefaultLogger, TakesThePlaceThatTheCallerNames) {
    tests::LogRecorder log;

    DefaultLogger::shared().log(1, "", "", commons::SourceLocation{"Elsewhere.cpp", 7});

    EXPECT_EQ(log.records().front().file, "Elsewhere.cpp");
    EXPECT_EQ(log.records().front().line, 7u);
}

TEST(DefaultLogger, KeepsRecordsInOrder) {
    tests::LogRecorder log;

    for (const char* message : {"one", "two", "three"}) DefaultLogger::shared().log(1, message, "test");

    EXPECT_THAT(log.messages(), ElementsAre("one", "two", "three"));
}

TEST(DefaultLogger, GivesThePreviousSinkBack) {
    tests::LogRecorder outer;
    {
        tests::LogRecorder inner;
        DefaultLogger::shared().log(1, "inside", "test");
        EXPECT_THAT(inner.messages(), ElementsAre("inside"));
    }

    DefaultLogger::shared().log(1, "outside", "test");

    EXPECT_THAT(outer.messages(), ElementsAre("outside"));
}

#if GTEST_HAS_STREAM_REDIRECTION
TEST(DefaultLogger, WritesOneLineToStandardErrorWithoutASink) {
    const auto previous = DefaultLogger::shared().setSink(nullptr);
    testing::internal::CaptureStderr();

    DefaultLogger::shared().log(4, "No plan", "init(options:)", commons::SourceLocation{"some/folder/Here.cpp", 12});

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[4] No plan (init(options:), Here.cpp:12)\n");
    DefaultLogger::shared().setSink(previous);
}
#endif

TEST(DefaultLogger, LetsASinkReplaceItself) {
    tests::LogRecorder later;
    const auto recording = DefaultLogger::shared().setSink(nullptr);
    int calls = 0;
    DefaultLogger::shared().setSink([&, owned = std::string(100, 'x')](const LogRecord&) {
        DefaultLogger::shared().setSink(recording);
        calls += owned.size() == 100;
    });

    DefaultLogger::shared().log(1, "first", "test");
    DefaultLogger::shared().log(1, "second", "test");

    EXPECT_EQ(calls, 1);
    EXPECT_THAT(later.messages(), ElementsAre("second"));
}

} // namespace

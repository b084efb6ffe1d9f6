#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::headless {
namespace {

using commons::DefaultLogger;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

void logSomething(std::string_view message) {
    DefaultLogger::shared().log(DefaultLogger::errorSeverity, message, "logSomething()");
}

// Collects unexpected records instead of failing, as long as it lives.
class UnexpectedLogs {
public:
    UnexpectedLogs() {
        TestBed::setUnexpectedLogHandler([this](const commons::LogRecord& record) { messages.push_back(record.message); });
    }
    ~UnexpectedLogs() { tests::failOnUnexpectedLog(); }

    std::vector<std::string> messages;
};

TEST(TestBed, IsTheMainRunLoopAtTimeNought) {
    TestBed bed;

    EXPECT_EQ(&runloop::MainRunLoop::main(), &bed.loop());
    EXPECT_EQ(bed.now_s(), 0);
}

TEST(TestBed, LetsTimePassWithWhatIsDueOnTheWay) {
    TestBed bed;
    std::vector<double> times;
    bed.loop().scheduleRepeating(2, [&] { times.push_back(bed.now_s()); });

    bed.runUntil(5);
    bed.runFor(1);

    EXPECT_EQ(bed.now_s(), 6);
    EXPECT_THAT(times, ElementsAre(2, 4, 6));
}

TEST(TestBed, SettlesWithoutLettingTimePass) {
    TestBed bed;
    bool isDone = false;
    bed.loop().schedule(0, [&] { isDone = true; });

    bed.settle();

    EXPECT_TRUE(isDone);
    EXPECT_EQ(bed.now_s(), 0);
}

TEST(TestBed, InstallsItsServices) {
    TestBed bed;

    EXPECT_EQ(&host::Installation::textShaper(), bed.fixedTextShaper());
    EXPECT_NE(bed.services().imageDecoder, nullptr);
}

TEST(TestBed, TakesOtherServicesAndAnotherLocale) {
    const auto before = foundation::Locale::current();
    const auto shaper = std::make_shared<FixedTextShaper>();
    {
        TestBed bed({.textShaper = shaper}, "de_AT");

        EXPECT_EQ(bed.fixedTextShaper(), shaper.get());
        EXPECT_EQ(foundation::Locale::current().identifier(), "de_AT");
    }
    EXPECT_EQ(foundation::Locale::current(), before);
}

TEST(TestBed, PutsBackWhatWasThereBefore) {
    TestBed outer;
    { TestBed inner; }

    EXPECT_EQ(&runloop::MainRunLoop::main(), &outer.loop());
    EXPECT_EQ(&host::Installation::textShaper(), outer.fixedTextShaper());
}

TEST(TestBed, CollectsLogRecords) {
    TestBed bed;
    logSomething("first");
    logSomething("second");

    const auto records = bed.takeLogRecords();

    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].message, "first");
    EXPECT_EQ(records[1].function, "logSomething()");
    EXPECT_THAT(bed.takeLogRecords(), IsEmpty());
}

TEST(TestBed, LeavesLogRecordsToTheOneBeforeWhenItEnds) {
    TestBed outer;
    { TestBed inner; }
    logSomething("for the outer one");

    const auto records = outer.takeLogRecords();

    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].message, "for the outer one");
}

// Logs when it is let go of.
struct LastWords {
    explicit LastWords(std::string words) : m_words(std::move(words)) {}
    ~LastWords() { logSomething(m_words); }
    LastWords(const LastWords&) = delete;

private:
    std::string m_words;
};

std::shared_ptr<host::TextShaper> shaperWithLastWords(std::string words) {
    struct Shaper {
        explicit Shaper(std::string words) : lastWords(std::move(words)) {}
        FixedTextShaper shaper;
        LastWords lastWords;
    };
    const auto shaper = std::make_shared<Shaper>(std::move(words));
    return {shaper, &shaper->shaper};
}

TEST(TestBed, CollectsWhatIsLoggedWhileItEnds) {
    UnexpectedLogs unexpected;
    {
        TestBed bed({.textShaper = shaperWithLastWords("of a service")});
        bed.loop().schedule(1, [words = std::make_shared<LastWords>("of what waits in the loop")] {});
    }

    EXPECT_THAT(unexpected.messages, ElementsAre("of what waits in the loop", "of a service"));
}

#if GTEST_HAS_STREAM_REDIRECTION
TEST(TestBed, WritesToStandardErrorWhatNobodyTookWhereNobodyIsToBeTold) {
    TestBed::setUnexpectedLogHandler(nullptr);
    ::testing::internal::CaptureStderr();
    {
        TestBed bed;
        logSomething("surprise");
    }
    tests::failOnUnexpectedLog();

    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "Unexpected log record: surprise (logSomething())\n");
}
#endif

TEST(TestBed, ReportsRecordsThatNobodyTook) {
    UnexpectedLogs unexpected;
    {
        TestBed bed;
        logSomething("expected");
        bed.takeLogRecords();
        logSomething("surprise");
    }

    EXPECT_THAT(unexpected.messages, ElementsAre("surprise"));
}

} // namespace
} // namespace proupsells::headless

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

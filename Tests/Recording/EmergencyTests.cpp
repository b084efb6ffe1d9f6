// What the program does when its surroundings let it down.
#include "Tests/Support/NoDeathTests.hpp"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include <gtest/gtest.h>

#include "Apps/ProUpsellsHost/Emergency.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int formerStatus = 7;

void sayFormer() {
    std::fputs("as before\n", stderr);
    std::_Exit(formerStatus);
}

// As where an exception leaves a thread.
template <class Exception>
[[noreturn]] void endBy(const Exception& exception) {
    std::set_terminate(sayFormer);
    prepareForEmergencies();
    try {
        throw exception;
    } catch (...) {
        std::terminate();
    }
}

[[noreturn]] void endByNothing() {
    std::set_terminate(sayFormer);
    prepareForEmergencies();
    std::terminate();
}

[[noreturn]] void goOnAfter(int signal) {
    prepareForEmergencies();
    std::raise(signal);
    std::_Exit(formerStatus);
}

[[noreturn]] void endInTheMiddleOfALine(const std::string& output) {
    if (!std::freopen(output.c_str(), "w", stdout)) std::_Exit(formerStatus);
    std::fputs("half a line", stdout);
    endForWantOfMemory();
}

} // namespace

TEST(Emergency, IsSaidWhereMemoryEndsOutsideOfAllCalls) {
    EXPECT_EXIT(endBy(std::bad_alloc()), ::testing::ExitedWithCode(2),
                "^memory: /: there is no more, expected enough for the input and its pictures\n$");
}

TEST(Emergency, IsNotOursToExplainWhereItIsAnother) {
    EXPECT_EXIT(endBy(1), ::testing::ExitedWithCode(formerStatus), "^as before\n$");
    EXPECT_EXIT(endByNothing(), ::testing::ExitedWithCode(formerStatus), "^as before\n$");
}

TEST(Emergency, IsNoneWhereAReaderHasGoneOrAFileIsLimited) {
    EXPECT_EXIT(goOnAfter(SIGPIPE), ::testing::ExitedWithCode(formerStatus), "");
    EXPECT_EXIT(goOnAfter(SIGXFSZ), ::testing::ExitedWithCode(formerStatus), "");
}

TEST(Emergency, LosesNothingThatWasPrinted) {
    const tests::TemporaryFolder folder;
    const std::string output = (folder.path() / "output").string();

    EXPECT_EXIT(endInTheMiddleOfALine(output), ::testing::ExitedWithCode(2), "^memory: ");
    EXPECT_EQ(tests::bytesOf(output), "half a line");
}

} // namespace proupsells::hostprogram

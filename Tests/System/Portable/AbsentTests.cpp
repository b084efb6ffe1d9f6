// What a system without any service says.
#include <gtest/gtest.h>

#include "Platform/System/BecomeProgram.hpp"
#include "Platform/System/ProgramFile.hpp"
#include "Platform/System/SharedObject.hpp"
#include "Platform/System/Terminal.hpp"

using namespace proupsells;

namespace {

TEST(ProgramFile, IsUnknown) {
    EXPECT_EQ(system::programFile(), "");
    EXPECT_EQ(system::ownFile(), "");
}

TEST(SharedObject, SaysThatNothingCanBeLoaded) {
    system::SharedObject object("some.so");

    EXPECT_FALSE(object.function("some"));
    EXPECT_EQ(object.complaint(), "this system loads no libraries while a program runs");
}

TEST(BecomeProgram, ComesBackAtOnce) {
    char* const arguments[] = {nullptr};

    EXPECT_EQ(system::becomeProgram("some", arguments), std::errc::function_not_supported);
}

TEST(Terminal, IsNotKnownToListen) { EXPECT_FALSE(system::errorsGoToTerminal()); }

} // namespace

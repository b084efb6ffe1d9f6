#include <gtest/gtest.h>

#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {
namespace {

TEST(Quoted, LeavesLettersOfAnyLanguageAsTheyAre) { EXPECT_EQ(inQuotes("7 días, ¥980"), "\"7 días, ¥980\""); }

TEST(Quoted, StaysOnOneLineAndSendsNothingToATerminal) {
    EXPECT_EQ(inQuotes("two\nlines\x1B[2J\x7F"), "\"two\\nlines\\u001b[2J\\u007f\"");
}

TEST(Quoted, EndsWhereItEnds) { EXPECT_EQ(inQuotes("say \"a\\b\""), "\"say \\\"a\\\\b\\\"\""); }

} // namespace
} // namespace proupsells::tooling

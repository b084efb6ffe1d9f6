#include <gtest/gtest.h>

#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {
namespace {

TEST(Quoted, LeavesLettersOfAnyLanguageAsTheyAre) { EXPECT_EQ(inQuotes("7 días, ¥980"), "\"7 días, ¥980\""); }

TEST(Quoted, StaysOnOneLineAndSendsNothingToATerminal) {
    EXPECT_EQ(inQuotes("two\nlines\x1B[2J\x7F"), "\"two\\nlines\\u001b[2J\\u007f\"");
}

// C1 controls are two bytes in UTF-8, and letters beside them begin with the same one.
TEST(Quoted, KnowsTheLateControlsFromLetters) {
    EXPECT_EQ(escaped("\xC2\x9B"
                      "31m \xC2\xA0\xC2\xA5 \xC2"),
              "\\u009b31m \xC2\xA0\xC2\xA5 \xC2");
}

TEST(Quoted, EndsWhereItEnds) { EXPECT_EQ(inQuotes("say \"a\\b\""), "\"say \\\"a\\\\b\\\"\""); }

} // namespace
} // namespace proupsells::tooling

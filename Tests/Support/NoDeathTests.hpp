// Where no test can look on while the program stops, tests that would are compiled and skipped. Included before each test there.
#pragma once

#include <gtest/gtest.h>

#if !GTEST_HAS_DEATH_TEST
#define EXPECT_EXIT(statement, status, message)                                                                                    \
    do {                                                                                                                           \
        if (false) {                                                                                                               \
            statement;                                                                                                             \
            (void)(message);                                                                                                       \
        }                                                                                                                          \
        GTEST_SKIP() << "This system has no death tests";                                                                          \
    } while (false)
#define EXPECT_DEATH(statement, message) EXPECT_EXIT(statement, , message)
#define ASSERT_DEATH(statement, message) EXPECT_EXIT(statement, , message)
#endif

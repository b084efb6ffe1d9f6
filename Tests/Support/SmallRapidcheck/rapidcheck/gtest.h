// A property as a test.
#pragma once

#include "Tests/Support/SmallRapidcheck/rapidcheck.h"

#define RC_GTEST_PROP(suite, name, arguments)                                                                                      \
    static void suite##_##name arguments;                                                                                          \
    TEST(suite, name) { rc::check(#name, &suite##_##name); }                                                                       \
    static void suite##_##name arguments

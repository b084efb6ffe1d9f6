// Fonts and pictures need Qt's application object around all tests.
#include <gtest/gtest.h>

#include "Backends/Qt/Application.hpp"

using namespace proupsells;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const qtbackend::Application application({.isHeadless = true});
    return RUN_ALL_TESTS();
}

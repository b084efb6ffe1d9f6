// Mixed text needs the full bidirectional algorithm.
#include <gtest/gtest.h>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Platform/Foundation/Locale.hpp"

using namespace proupsells;

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    foundation::LocaleServices::setCurrent(std::make_shared<icubackend::IcuLocaleServices>());
    return RUN_ALL_TESTS();
}

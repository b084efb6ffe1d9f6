// A test that may change the current locale, its services and the main bundle.
#pragma once

#include <gmock/gmock.h>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"

namespace proupsells::tests {

class LocaleFixture : public testing::Test {
protected:
    ~LocaleFixture() override {
        foundation::Locale::setCurrent(foundation::Locale{});
        foundation::LocaleServices::setCurrent(nullptr);
        foundation::Bundle::setMain({});
    }
};

} // namespace proupsells::tests

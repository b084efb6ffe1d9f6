#include <memory>

#include <gtest/gtest.h>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Host/Services.hpp"

namespace proupsells::host {
namespace {

Services servicesWithShaper() { return {.textShaper = std::make_shared<headless::FixedTextShaper>()}; }

// Answers every question with the same words, so that it can be recognised.
class NamedLocaleServices final : public foundation::LocaleServices {
public:
    explicit NamedLocaleServices(std::string name) : m_name(std::move(name)) {}
    std::optional<std::string> percentText(double, int, const foundation::Locale&) const override { return m_name; }
    std::string upperCased(std::string_view, const foundation::Locale&) const override { return m_name; }
    std::string titleCased(std::string_view, const foundation::Locale&) const override { return m_name; }
    std::size_t graphemeCount(std::string_view) const override { return 0; }
    std::vector<std::size_t> graphemeEnds(std::string_view) const override { return {}; }
    geometry::LayoutDirection layoutDirection(const foundation::Locale&) const override { return {}; }
    std::vector<foundation::BidiRun> bidiRuns(std::string_view, geometry::LayoutDirection) const override { return {}; }

private:
    std::string m_name;
};

std::string currentLocaleServices() { return foundation::LocaleServices::current().upperCased("plain", foundation::Locale()); }

std::unique_ptr<Installation> installLocaleServices(std::string name) {
    return std::make_unique<Installation>(Services{.localeServices = std::make_shared<NamedLocaleServices>(std::move(name))});
}

TEST(Installation, StopsTheProgramWhereThereIsNone) {
    EXPECT_FALSE(Installation::exists());
    EXPECT_DEATH(Installation::current(), "No services are installed: call proupsells::standard::install\\(\\), or create a "
                                          "host::Installation, before the first view");
}

TEST(Installation, StopsTheProgramWhereATextIsToBeMeasuredWithoutAShaper) {
    const Installation installation{Services{}};

    EXPECT_DEATH(Installation::textShaper(),
                 "No text shaper is installed: host::Services::textShaper is null, and a text is to be measured");
}

TEST(Installation, CountsWhileItIsTheNewest) {
    const Services outerServices = servicesWithShaper(), innerServices = servicesWithShaper();
    const Installation outer{outerServices};
    {
        const Installation inner{innerServices};
        EXPECT_EQ(&Installation::textShaper(), innerServices.textShaper.get());
    }
    EXPECT_EQ(&Installation::textShaper(), outerServices.textShaper.get());
}

TEST(Installation, MayEndBeforeANewerOne) {
    const Services firstServices = servicesWithShaper(), lastServices = servicesWithShaper();
    const Installation first{firstServices};
    auto middle = std::make_unique<Installation>(servicesWithShaper());
    auto last = std::make_unique<Installation>(lastServices);

    middle.reset();
    EXPECT_EQ(&Installation::textShaper(), lastServices.textShaper.get());
    last.reset();
    EXPECT_EQ(&Installation::textShaper(), firstServices.textShaper.get());
}

TEST(Installation, BringsItsLocaleServicesAndTakesThemAway) {
    auto outer = installLocaleServices("outer");
    auto inner = installLocaleServices("inner");

    EXPECT_EQ(currentLocaleServices(), "inner");
    inner.reset();
    EXPECT_EQ(currentLocaleServices(), "outer");
    outer.reset();
    EXPECT_EQ(currentLocaleServices(), "PLAIN");
}

TEST(Installation, LeavesNewerLocaleServicesInPlaceWhenItEnds) {
    auto outer = installLocaleServices("outer");
    auto inner = installLocaleServices("inner");

    outer.reset();
    EXPECT_EQ(currentLocaleServices(), "inner");
    inner.reset();
    EXPECT_EQ(currentLocaleServices(), "PLAIN");
}

TEST(Installation, WithoutLocaleServicesBringsTheBuiltInOnes) {
    auto outer = installLocaleServices("outer");
    const Installation inner{Services{}};

    EXPECT_EQ(currentLocaleServices(), "PLAIN");
}

} // namespace
} // namespace proupsells::host

#include "Platform/Host/Look.hpp"

#include <gtest/gtest.h>

#include <thread>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::host {
namespace {

class LookTest : public testing::Test {
protected:
    ~LookTest() override { Look::setCurrent({}); }
};

TEST_F(LookTest, SetsColorsAndTypefaces) {
    Look look;
    look.palette.set("ink", graphics::ColorScheme::light, graphics::rgb(0x123456));
    look.typefaces.families["Inter"] = "Another";

    Look::setCurrent(look);

    EXPECT_EQ(graphics::Color{"ink"}.resolved(graphics::ColorScheme::light), graphics::rgb(0x123456));
    EXPECT_EQ(graphics::Typefaces::current().families.at("Inter"), "Another");
}

TEST_F(LookTest, IsFollowedLikeAnotherLanguage) {
    const std::uint64_t before = foundation::LanguageChanges::count();

    Look::setCurrent({});

    EXPECT_EQ(foundation::LanguageChanges::count(), before + 1);
}

TEST_F(LookTest, KeepsNoTextOfTheFormerTypefaces) {
    const auto shaper = std::make_shared<headless::FixedTextShaper>();
    const Installation installation({.textShaper = shaper});
    const graphics::StyledRun run{"text", {.size = 10}, 0};
    const auto before = TextCache::shared().shaped({&run, 1}, "en", geometry::LayoutDirection::leftToRight);

    Look::setCurrent({});

    EXPECT_NE(TextCache::shared().shaped({&run, 1}, "en", geometry::LayoutDirection::leftToRight), before);
}

TEST(LookDeathTest, BelongsToTheMainThread) {
    EXPECT_DEATH(
        {
            runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
            std::thread([] { Look::setCurrent({}); }).join();
        },
        "host::Look::setCurrent must be called on the main thread");
}

TEST(InstallationDeathTest, BelongsToTheMainThread) {
    EXPECT_DEATH(
        {
            runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
            std::thread([] { const Installation installation({}); }).join();
        },
        "host::Installation must be called on the main thread");
}

} // namespace
} // namespace proupsells::host

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Standard/PixelScreen.hpp"

using namespace proupsells;

using standard::PixelScreen;
using testing::ElementsAre;
using uikit::UIViewController;

namespace {

// A red screen that is left by Escape.
class RedScreen : public UIViewController {
public:
    explicit RedScreen(std::vector<std::string>& told) : m_told(told) {}

    void viewDidLoad() override {
        view()->setBackgroundColor(uikit::UIColor{"red", graphics::rgb(0xFF0000), graphics::rgb(0x400000)});
    }
    void viewDidDisappear(bool) override { m_told.push_back("disappeared"); }
    bool accessibilityPerformEscape() override {
        dismiss(true);
        return true;
    }

private:
    std::vector<std::string>& m_told;
};

class PixelScreens : public testing::Test {
protected:
    std::uint32_t paintedPixel() {
        std::vector<std::uint32_t> memory(4);
        screen->paint({memory.data(), 2, 2, 2 * 4}, 1);
        return memory[0];
    }

    headless::TestBed bed;
    std::vector<std::string> told;
    std::shared_ptr<RedScreen> controller = std::make_shared<RedScreen>(told);
    std::unique_ptr<PixelScreen> screen = std::make_unique<PixelScreen>(controller, geometry::Size{2, 2});
};

} // namespace

TEST_F(PixelScreens, ShowAController) {
    EXPECT_EQ(screen->controller(), controller.get());
    EXPECT_EQ(controller->view()->frame().size, (geometry::Size{2, 2}));
    EXPECT_EQ(paintedPixel(), 0xFFFF0000u);
}

TEST_F(PixelScreens, FollowTheTraitsOfTheirWindow) {
    screen->window().setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});

    EXPECT_EQ(paintedPixel(), 0xFF400000u);
}

TEST_F(PixelScreens, TakeTheirControllerAwayWhenItIsToGo) {
    screen->key(host::Key::escape);

    EXPECT_EQ(screen->controller(), nullptr);
    EXPECT_THAT(told, ElementsAre("disappeared"));
}

TEST_F(PixelScreens, LeaveThatToAHostThatAsksForIt) {
    screen->setDismissalHandler([this] { told.push_back("asked"); });
    screen->key(host::Key::escape);

    EXPECT_EQ(screen->controller(), controller.get());
    EXPECT_THAT(told, ElementsAre("asked"));
}

TEST_F(PixelScreens, TellTheirControllerWhenTheyGo) {
    screen->setDismissalHandler([this] { told.push_back("asked"); });
    screen.reset();

    EXPECT_THAT(told, ElementsAre("disappeared"));
}

TEST_F(PixelScreens, MayGoAwayInsideADismissal) {
    const std::weak_ptr<RedScreen> watched = controller;
    controller.reset();
    screen->setDismissalHandler([this] { screen.reset(); });
    screen->key(host::Key::escape);

    EXPECT_EQ(screen, nullptr);
    EXPECT_TRUE(watched.expired());
}

TEST_F(PixelScreens, MayBeEmpty) {
    screen = std::make_unique<PixelScreen>();
    screen->pointer({1, 1}, true);
    screen->setSize({2, 2});

    EXPECT_EQ(screen->controller(), nullptr);
    EXPECT_FALSE(screen->key(host::Key::escape));
    EXPECT_EQ(paintedPixel(), 0xFFFFFFFFu);
}

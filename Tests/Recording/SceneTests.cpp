// The screen that the window program's paywall stands on.
#include <gmock/gmock.h>

#include <iomanip>
#include <sstream>

#include "Apps/ProUpsellsHost/SceneViewController.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::tests {

namespace {

using geometry::Rect;
using graphics::CommandKind;
using ::testing::ElementsAre;

const char* nameOf(const graphics::Command& command) {
    switch (command.kind) {
    case CommandKind::fillRectangle: return "rectangle";
    case CommandKind::fillRoundedRectangle: return "rounded";
    case CommandKind::fillEllipse: return "disc";
    case CommandKind::shadow: return "shadow";
    default: return "another";
    }
}

// The shape, its frame, its corners' radius and its colour, as in "rounded 16 14 28 28 r8 #ff6f5b".
std::string textOf(const graphics::Command& command) {
    std::ostringstream text;
    const Rect& frame = command.frame;
    text << nameOf(command) << ' ' << frame.minX() << ' ' << frame.minY() << ' ' << frame.width() << ' ' << frame.height();
    if (command.kind == CommandKind::fillRoundedRectangle) text << " r" << command.cornerRadius;
    if (command.kind == CommandKind::shadow) text << " blur " << command.blurRadius << " alpha " << int(command.color.alpha);
    const graphics::RGBA& color = command.color;
    text << " #" << std::hex << std::setfill('0') << std::setw(6) << ((color.red << 16) | (color.green << 8) | color.blue);
    return text.str();
}

class Scene : public ::testing::Test {
protected:
    std::vector<std::string> paintedIn(geometry::Size size, graphics::ColorScheme scheme = graphics::ColorScheme::light) {
        const auto window = uikit::UIWindow::create(size);
        uikit::UITraitCollection traits;
        traits.userInterfaceStyle = scheme;
        window->setTraits(traits);
        window->setRootViewController(std::make_shared<hostprogram::SceneViewController>());
        bed.settle();
        graphics::DisplayList list;
        window->paint(list);
        std::vector<std::string> texts;
        for (const graphics::Command& command : list.commands) texts.push_back(textOf(command));
        return texts;
    }
    // The three sheets of paper, from the left.
    std::vector<std::string> sheetsIn(geometry::Size size) {
        std::vector<std::string> sheets;
        for (const std::string& text : paintedIn(size))
            if (text.ends_with("#fffdf9")) sheets.push_back(text);
        return sheets;
    }

    headless::TestBed bed;
};

} // namespace

// Each poster is 260 by 364 points: 20 units of 13 wide.
TEST_F(Scene, HasThreePostersOnADeskBelowABar) {
    EXPECT_THAT(paintedIn({960, 880}),
                ElementsAre("rectangle 0 0 960 880 #efe6d8",
                            // The left poster,
                            "shadow 16.25 294 260 364 blur 12 alpha 28 #000000", "rounded 16.25 286 260 364 r12 #fffdf9",
                            "rounded 35.75 305.5 221 195 r8 #dfd3c1", "disc 185.25 331.5 45.5 45.5 #ffc655",
                            "rounded 35.75 526.5 169 20.8 r10.4 #dfd3c1", "rounded 35.75 562.9 117 20.8 r10.4 #dfd3c1",
                            "rounded 35.75 609.7 78 11.7 r5.85 #dfd3c1",
                            // the one behind the paywall,
                            "shadow 350 294 260 364 blur 12 alpha 28 #000000", "rounded 350 286 260 364 r12 #fffdf9",
                            "rounded 369.5 305.5 221 195 r8 #dfd3c1", "disc 519 331.5 45.5 45.5 #ff6f5b",
                            "rounded 369.5 526.5 169 20.8 r10.4 #dfd3c1", "rounded 369.5 562.9 117 20.8 r10.4 #dfd3c1",
                            "rounded 369.5 609.7 78 11.7 r5.85 #dfd3c1",
                            // the right one,
                            "shadow 683.75 294 260 364 blur 12 alpha 28 #000000", "rounded 683.75 286 260 364 r12 #fffdf9",
                            "rounded 703.25 305.5 221 195 r8 #dfd3c1", "disc 852.75 331.5 45.5 45.5 #7cc4f2",
                            "rounded 703.25 526.5 169 20.8 r10.4 #dfd3c1", "rounded 703.25 562.9 117 20.8 r10.4 #dfd3c1",
                            "rounded 703.25 609.7 78 11.7 r5.85 #dfd3c1",
                            // and the bar with a mark, a name, four tools and a button.
                            "rectangle 0 0 960 56 #f9f4ec", "rounded 16 14 28 28 r8 #ff6f5b", "rounded 60 23 96 10 r5 #dfd3c1",
                            "disc 402 16 24 24 #dfd3c1", "disc 446 16 24 24 #dfd3c1", "disc 490 16 24 24 #dfd3c1",
                            "disc 534 16 24 24 #dfd3c1", "rounded 860 14 84 28 r14 #dfd3c1"));
}

TEST_F(Scene, IsADeeperOneInTheDark) {
    const auto painted = paintedIn({960, 880}, graphics::ColorScheme::dark);

    ASSERT_EQ(painted.size(), 30u);
    EXPECT_EQ(painted[0], "rectangle 0 0 960 880 #211d18");
    EXPECT_EQ(painted[2], "rounded 16.25 286 260 364 r12 #352f28");
    EXPECT_EQ(painted[3], "rounded 35.75 305.5 221 195 r8 #50473b");
    EXPECT_EQ(painted[4], "disc 185.25 331.5 45.5 45.5 #c99a42");
    EXPECT_EQ(painted[11], "disc 519 331.5 45.5 45.5 #c9594a");
    EXPECT_EQ(painted[18], "disc 852.75 331.5 45.5 45.5 #5f96ba");
    EXPECT_EQ(painted[22], "rectangle 0 0 960 56 #2b2620");
    EXPECT_EQ(painted[23], "rounded 16 14 28 28 r8 #c9594a");
}

TEST_F(Scene, HasPostersThatFitBesideThePaywall) {
    // 192.5 points on either side of it, and 16 on either side of a poster.
    EXPECT_THAT(sheetsIn({760, 600}),
                ElementsAre("rounded 16 215.65 160.5 224.7 r12 #fffdf9", "rounded 299.75 215.65 160.5 224.7 r12 #fffdf9",
                            "rounded 583.5 215.65 160.5 224.7 r12 #fffdf9"));
}

TEST_F(Scene, HasPostersThatAreNeitherTinyNorHuge) {
    EXPECT_THAT(sheetsIn({700, 600}), ElementsAre("rounded 11.25 230 140 196 r12 #fffdf9", "rounded 280 230 140 196 r12 #fffdf9",
                                                  "rounded 548.75 230 140 196 r12 #fffdf9"));
    EXPECT_THAT(sheetsIn({1375, 600}), ElementsAre("rounded 120 146 260 364 r12 #fffdf9", "rounded 557.5 146 260 364 r12 #fffdf9",
                                                   "rounded 995 146 260 364 r12 #fffdf9"));
}

TEST_F(Scene, IsWholeInATinyWindow) {
    EXPECT_THAT(sheetsIn({400, 40}), ElementsAre("rounded -63.75 -42 140 196 r12 #fffdf9", "rounded 130 -42 140 196 r12 #fffdf9",
                                                 "rounded 323.75 -42 140 196 r12 #fffdf9"));
    EXPECT_EQ(paintedIn({400, 40}).front(), "rectangle 0 0 400 40 #efe6d8");
}

TEST_F(Scene, FillsItsWindowWhenThatGrows) {
    const auto window = uikit::UIWindow::create({400, 400});
    window->setRootViewController(std::make_shared<hostprogram::SceneViewController>());
    bed.settle();

    window->setSize({500, 600}, {});
    bed.settle();

    EXPECT_EQ(window->rootViewController()->view()->subviews().front()->frame(), (Rect{{0, 0}, {500, 600}}));
}

} // namespace proupsells::tests

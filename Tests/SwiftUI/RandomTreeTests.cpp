// What holds for every tree, however odd.
#include <cmath>
#include <random>

#include "Tests/SwiftUI/RandomTree.hpp"
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

constexpr int treeCount = 400;

std::vector<std::uint8_t> randomBytes(unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::uint8_t> bytes(600);
    for (auto& byte : bytes) byte = std::uint8_t(random());
    return bytes;
}

void collectFrames(const Node& node, std::vector<Rect>& result) {
    result.push_back(node.frame());
    for (const auto& child : node.children())
        if (child && !child->isAbsent()) collectFrames(*child, result);
}

std::vector<Rect> framesOf(Screen& screen) {
    screen.host().update();
    std::vector<Rect> result;
    collectFrames(*screen.host().rootNode(), result);
    return result;
}

TEST(AnyTree, HasSoundFrames) {
    for (unsigned seed = 0; seed < treeCount; ++seed) {
        SCOPED_TRACE(seed);
        const auto bytes = randomBytes(seed);
        Screen screen{[&] { return RandomTree(bytes).make(); }, {320, 480}, {20, 0, 34, 0}};

        for (const Rect& frame : framesOf(screen)) {
            ASSERT_TRUE(std::isfinite(frame.minX()) && std::isfinite(frame.minY()));
            ASSERT_TRUE(std::isfinite(frame.maxX()) && std::isfinite(frame.maxY()));
            ASSERT_TRUE(frame.width() >= 0 && frame.height() >= 0);
        }
        screen.host().displayList();
        screen.tree();
    }
}

TEST(AnyTree, IsLaidOutTheSameAgain) {
    for (unsigned seed = 0; seed < treeCount; ++seed) {
        SCOPED_TRACE(seed);
        const auto bytes = randomBytes(seed);
        Screen screen{[&] { return RandomTree(bytes).make(); }, {320, 480}};
        const auto before = framesOf(screen);

        screen.host().dropCaches();
        ASSERT_EQ(framesOf(screen), before);
        screen.host().setNeedsUpdate();
        ASSERT_EQ(framesOf(screen), before);
    }
}

TEST(AnyTree, LooksAfterAChangeAsIfItHadAlwaysBeenThatWay) {
    for (unsigned seed = 0; seed < treeCount; ++seed) {
        SCOPED_TRACE(seed);
        auto bytes = randomBytes(seed);
        std::mt19937 random(seed + 1'000'000);
        std::size_t usedByteCount = 1;
        const auto root = [&] {
            RandomTree tree(bytes);
            View view = tree.make();
            usedByteCount = std::max<std::size_t>(tree.usedByteCount(), 1);
            return view;
        };
        Screen screen{root, {320, 480}, {20, 0, 34, 0}};

        for (int change = 0; change < 12; ++change) {
            // Another tree from some view on, or the same one with one thing a little different.
            std::uint8_t& byte = bytes[random() % usedByteCount];
            byte = std::uint8_t(change % 3 == 0 ? random() : byte + 1);
            screen.host().setNeedsUpdate();
            const auto incremental = framesOf(screen);
            screen.host().displayList();

            Screen fresh{root, {320, 480}, {20, 0, 34, 0}};
            ASSERT_EQ(incremental, framesOf(fresh));
            ASSERT_TRUE(paintTheSame(screen.host().displayList(), fresh.host().displayList()));
        }
    }
}

// A picture that reaches past its frame counts with all that it covers.
TEST(AnyTree, ShowsAStrokeThatGrowsIntoTheWindow) {
    double lineWidth = 1;
    Screen screen{[&] { return Circle().stroke(lineWidth) | frame(10, 10) | offset(-100, 0); }, {100, 100}};
    EXPECT_TRUE(screen.host().displayList().commands.empty());

    lineWidth = 120;
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_EQ(screen.host().displayList().commands.size(), 1u);
}

TEST(AnyTree, PaintsALayerBehindWhatItStoodInFrontOf) {
    bool isBehind = false;
    Screen screen{[&]() -> View {
                      View content = ColorView{graphics::Color::white} | frame(50, 50),
                           layer = Circle().fill(graphics::Color::black);
                      return isBehind ? View{content | background(layer)} : View{content | overlay(layer)};
                  },
                  {100, 100}};
    const auto isCircleInFront = [&] {
        const auto& commands = screen.host().displayList().commands;
        return commands.size() == 2 && commands.back().kind == graphics::CommandKind::fillEllipse;
    };
    EXPECT_TRUE(isCircleInFront());

    isBehind = true;
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_FALSE(isCircleInFront());
}

TEST(AnyTree, ShowsAShapeThatIsLargerThanItsFrame) {
    Screen screen{[] { return Circle().inset(-100) | frame(10, 10) | offset(-100, 0); }, {100, 100}};

    EXPECT_EQ(screen.host().displayList().commands.size(), 1u);
}

TEST(AnyTree, FollowsAResizeAsIfItHadAlwaysBeenThatSize) {
    for (unsigned seed = 0; seed < treeCount; ++seed) {
        SCOPED_TRACE(seed);
        const auto bytes = randomBytes(seed);
        Screen screen{[&] { return RandomTree(bytes).make(); }, {320, 480}};
        screen.host().setSize({200, 300}, {10, 0, 20, 0});

        Screen fresh{[&] { return RandomTree(bytes).make(); }, {200, 300}, {10, 0, 20, 0}};
        ASSERT_EQ(framesOf(screen), framesOf(fresh));
        ASSERT_TRUE(paintTheSame(screen.host().displayList(), fresh.host().displayList()));
    }
}

} // namespace
} // namespace proupsells::swiftui::tests

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
        Screen screen{[&] { return RandomTree(bytes).make(); }, {320, 480}, {20, 0, 34, 0}};

        for (int change = 0; change < 4; ++change) {
            bytes[random() % 200] = std::uint8_t(random());
            screen.host().setNeedsUpdate();
            const auto incremental = framesOf(screen);
            screen.host().displayList();

            Screen fresh{[&] { return RandomTree(bytes).make(); }, {320, 480}, {20, 0, 34, 0}};
            ASSERT_EQ(incremental, framesOf(fresh));
            ASSERT_EQ(screen.host().displayList().commands.size(), fresh.host().displayList().commands.size());
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
    }
}

} // namespace
} // namespace proupsells::swiftui::tests

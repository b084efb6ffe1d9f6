// A view and a modifier that are added as Docs/adding-a-view.md says.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Tests/SwiftUI/Screen.hpp"
#include "Tests/SwiftUI/Star.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

struct Greeting {
    std::string name;
    Action action;

    View body(BuildContext&) const { return Button{.action = action, .label = Text{"Hello, " + name}}; }
    bool operator==(const Greeting&) const = default;
};

TEST(AddedView, IsMeasuredDescribedAndPlacesItsContent) {
    Screen screen{
        [] { return Star{.points = 7, .radius = 20, .content = block("middle", 10, 4)} | accessibilityIdentifier("star"); },
        {100, 100}};

    EXPECT_EQ(screen.frame("star"), rect(30, 30, 40, 40));
    EXPECT_EQ(screen.frame("middle"), rect(45, 48, 10, 4));
    EXPECT_EQ(screen.node("star").type, "Star");
    EXPECT_EQ(screen.node("star").value, "7");
}

TEST(AddedView, FollowsItsNewestValue) {
    double radius = 20;
    Screen screen{[&] { return Star{.radius = radius} | accessibilityIdentifier("star"); }, {100, 100}};

    radius = 10;
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_EQ(screen.frame("star"), rect(40, 40, 20, 20));
}

TEST(AddedView, TakesTouchesInItsFrame) {
    Screen screen{[] { return Star{.radius = 20}; }, {100, 100}};

    EXPECT_TRUE(screen.host().hits({50, 50}));
    EXPECT_FALSE(screen.host().hits({20, 50}));
}

TEST(AddedModifier, PaintsBehindTheViewAndTakesNoRoom) {
    Screen screen{[] { return block("lamp", 10, 10) | glow(); }, {100, 100}};

    EXPECT_EQ(screen.frame("lamp"), rect(45, 45, 10, 10));
    const auto& commands = screen.host().displayList().commands;
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].bounds, rect(41, 41, 18, 18));
}

TEST(AddedModifier, ShowsAChangeByItsAnimation) {
    double strength = 1;
    Screen screen{[&] { return block("lamp", 10, 10) | glow(strength); }, {100, 100}};

    strength = 0;
    withAnimation(motion::Animation{.duration_s = 2}, [&] { screen.host().setNeedsUpdate(); });
    screen.settle();

    EXPECT_TRUE(screen.host().isAnimating());
    screen.runFor(2);
    EXPECT_FALSE(screen.host().isAnimating());
}

TEST(AddedView, OfOthersIsAsShortAsItReads) {
    int taps = 0;
    Screen screen{[&] { return Greeting{"you", [&] { ++taps; }}; }, {100, 100}};

    screen.tree().children.at(0).activate();

    EXPECT_THAT(screen.texts(), ElementsAre("Hello, you"));
    EXPECT_EQ(taps, 1);
}

TEST(Element, LeavesAValueThatIsStillNeededAlone) {
    struct Words {
        std::string text;
    };
    class WordsNode final : public Node {
    public:
        void adopt(Words&&, UpdatePass&) {}
    };
    const ElementArena::Build scope;
    Words words{std::string(100, 'x')};

    newElement<WordsNode>(words);

    EXPECT_EQ(words.text.size(), 100u);
}

// --- The page and the sources say the same

std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

// The folder above the working directory, or above this source, that has the page; empty when there is none.
std::filesystem::path repository() {
    for (auto start : {std::filesystem::current_path(), std::filesystem::path(__FILE__)})
        for (auto folder = start; folder != folder.parent_path(); folder = folder.parent_path())
            if (std::filesystem::exists(folder / "Docs/adding-a-view.md")) return folder;
    return {};
}

TEST(AddingAView, IsDescribedWithCodeThatCompiles) {
    const auto root = repository();
    const std::string page = contentOf(root / "Docs/adding-a-view.md");
    const std::string sources = contentOf(root / "Tests/SwiftUI/Star.hpp") + contentOf(root / "Tests/SwiftUI/Star.cpp") +
                                contentOf(root / "Tests/SwiftUI/AddedViewTests.cpp");
    const std::string opening = "```cpp\n", closing = "```\n";

    int blocks = 0;
    for (auto start = page.find(opening); start != std::string::npos; start = page.find(opening, start)) {
        start += opening.size();
        const std::string block = page.substr(start, page.find(closing, start) - start);
        EXPECT_NE(sources.find(block), std::string::npos) << "Not in the sources of the tests:\n" << block;
        ++blocks;
    }
    EXPECT_GE(blocks, 9);
}

} // namespace
} // namespace proupsells::swiftui::tests

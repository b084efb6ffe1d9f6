#include <gtest/gtest.h>

#include "Tooling/ScreenTree.hpp"

namespace proupsells::tooling {
namespace {

using accessibility::SemanticNode;
using accessibility::Traits;

SemanticNode sampleScreen() {
    SemanticNode price{.type = "Text", .frame = {{20.5, -3}, {100, 22.3456}}, .isOnScreen = true};
    price.text = {.text = "say \"9 \\ 10\"\nor\x1B[2J\xC2\x9B", .font = "body", .size = 17, .color = "velaLabel", .lineCount = 2};
    SemanticNode button{.type = "Button", .frame = {{16, 0}, {343, 56}}, .identifier = "subscribe"};
    button.traits = Traits::button | Traits::selected;
    button.opacity = 0.25;
    button.children = {price};
    SemanticNode root{.type = "UIWindow", .frame = {{0, 0}, {375, 800}}, .isOnScreen = true};
    root.scroll = {.contentOffset = {0, 12.5}, .contentSize = {375, 1200}};
    root.children = {button, SemanticNode{.type = "Image", .isOnScreen = true, .image = "star"}};
    return root;
}

TEST(ScreenText, HasANodeALineWithWhatTheNodeHas) {
    EXPECT_EQ(screenText(screenTree(sampleScreen())),
              "UIWindow [0 0 375 800] offset=\"0 12.5\" content=\"375 1200\" inset=\"0 0 0 0\"\n"
              "  Button [16 0 343 56] identifier=\"subscribe\" onScreen=\"no\" traits=\"button selected\" opacity=\"0.25\"\n"
              "    Text [20.5 -3 100 22.346] text=\"say \\\"9 \\\\ 10\\\"\\nor\\u001b[2J\\u009b\" font=\"body\" size=\"17\" "
              "colour=\"velaLabel\" lines=\"2\"\n"
              "  Image [0 0 0 0] image=\"star\"\n");
}

TEST(ScreenText, ComesBackAsTheSameTree) {
    const ScreenTree tree = screenTree(sampleScreen());
    EXPECT_EQ(readScreenText(screenText(tree)), tree);
}

TEST(ScreenText, IsNotReadWhereAnythingIsWrong) {
    const std::string whole = screenText(screenTree(sampleScreen()));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto read = readScreenText(whole.substr(0, length));
        const bool endsWithALine = length > 0 && whole[length - 1] == '\n';
        EXPECT_EQ(read.has_value(), endsWithALine) << length;
    }
    for (const char* damaged :
         {"A [0 0 0 0]\nB [0 0 0 0]\n", "A [0 0 0 0]\n    B [0 0 0 0]\n", "  A [0 0 0 0]\n", " A [0 0 0 0]\n", "A [0 0 0]\n",
          "A [0 0 0 x]\n", "A [0 0 0 1.2345]\n", "A [0 0 0 0] x=1\n", "A [0 0 0 0] x=\"\\q\"\n", "A [0 0 0 0] x=\"\\u00\"\n",
          "A [0 0 0 99999999999999999999]\n", "[0 0 0 0]\n", "\n"})
        EXPECT_FALSE(readScreenText(damaged)) << damaged;
}

TEST(ScreenText, IsNotReadWhereItIsDeeperThanAnyScreen) {
    std::string text;
    for (int depth = 0; depth < 100'000; ++depth) text += std::string(2 * std::size_t(depth % 2'000), ' ') + "A [0 0 0 0]\n";
    EXPECT_FALSE(readScreenText(text));
}

} // namespace
} // namespace proupsells::tooling

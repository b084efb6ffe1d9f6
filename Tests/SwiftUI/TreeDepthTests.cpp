// Views in views in views.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

struct Nest {
    int inside;

    View body(BuildContext&) const { return inside > 0 ? View{Nest{inside - 1}} : View{Text{"innermost"}}; }
    bool operator==(const Nest&) const = default;
};

struct ItsOwnContent {
    View body(BuildContext&) const { return VStack{.content = {Text{"again"}, ItsOwnContent{}}}; }
    bool operator==(const ItsOwnContent&) const = default;
};

TEST(TreeDepth, MayBeGreat) {
    Screen screen{[] { return Nest{480}; }, {100, 100}};

    EXPECT_THAT(screen.texts(), ElementsAre("innermost"));
    screen.host().displayList();
}

TEST(TreeDepthDeathTest, IsRefusedBeyondFiveHundred) {
    EXPECT_DEATH(Screen([] { return Nest{5000}; }, {100, 100}),
                 "Views are nested too deeply: more than 500 stand inside each other. Is one of them its own content\\?\n$");
}

TEST(TreeDepthDeathTest, IsRefusedOfAViewInItself) {
    EXPECT_DEATH(Screen([] { return ItsOwnContent{}; }, {100, 100}),
                 "stand inside each other. Is one of them its own content\\?\n$");
}

} // namespace
} // namespace proupsells::swiftui::tests

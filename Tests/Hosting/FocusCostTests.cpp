// What a frame costs while a control has the focus.
#include "Tests/Hosting/HostingScreen.hpp"

#include "Tests/Support/AllocationCounter.hpp"

namespace proupsells::hosting {
namespace {

using namespace swiftui;

// Buttons one below the other, 50 points each, in a page to scroll.
struct Rows {
    int count;

    View body(BuildContext&) const {
        std::vector<View> rows;
        for (int i = 0; i < count; ++i) {
            const std::string name = "row " + std::to_string(i);
            rows.push_back(Button{.action = [] {}, .label = Text{name} | frame({.height = 50})} | accessibilityIdentifier(name));
        }
        return ScrollView{.content = {VStack{.content = rows}}};
    }
};

class FocusCost : public HostingTest {
protected:
    // Shows as many rows, the first of them in focus.
    void showRows(int count) {
        show(Rows{count});
        bed.settle();
        window->key(host::Key::tab);
        painted();
    }
    // Of a frame in which the page stands elsewhere.
    std::size_t allocationsOfScrolledFrame() {
        window->scroll({200, 400}, {0, 10});
        return tests::allocationsDuring([this] { window->paint(m_list); });
    }

private:
    graphics::DisplayList m_list;
};

TEST_F(FocusCost, DoesNotGrowWithWhatIsOutOfSight) {
    showRows(20);
    allocationsOfScrolledFrame();
    const std::size_t few = allocationsOfScrolledFrame();
    showRows(2000);
    allocationsOfScrolledFrame();

    EXPECT_LE(allocationsOfScrolledFrame(), 2 * few);
}

TEST_F(FocusCost, IsNothingWhileNothingChanges) {
    showRows(20);
    graphics::DisplayList list;
    window->paint(list);
    const std::size_t commands = list.commands.size();

    EXPECT_EQ(tests::allocationsDuring([&] { window->paint(list); }), 0u);
    EXPECT_EQ(list.commands.size(), commands);
}

TEST_F(FocusCost, IsPaidWhereTheRingHasToFollow) {
    showRows(20);
    const graphics::DisplayList before = painted();
    window->scroll({200, 400}, {0, 10});
    bed.settle();
    const graphics::DisplayList after = painted();

    // The ring is painted last.
    EXPECT_NE(before.commands.back().frame, after.commands.back().frame);
    window->scroll({200, 400}, {0, -10});
    EXPECT_EQ(before.commands.back().frame, painted().commands.back().frame);
}

} // namespace
} // namespace proupsells::hosting

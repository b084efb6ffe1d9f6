// What lists cost that reach far past the screen: what is in sight and no more. And that nothing in sight is left out.
#include <random>

#include "Tests/SwiftUI/Rows.hpp"

namespace proupsells::tests {
namespace {

using geometry::Axis;
using geometry::Point;
using graphics::Command;
using graphics::DisplayList;

// --- What a frame costs

class LongList : public testing::Test {
protected:
    // The views that painting looks at in a frame after the list has been scrolled.
    static std::uint64_t viewsInScrolledFrame(int rowCount) {
        TouchScreen screen{[&] { return rows(rowCount); }};
        screen.host().scroll({100, 100}, {0, 250});
        screen.settle();
        return viewsInFrame(screen);
    }
    static std::uint64_t viewsInFrame(TouchScreen& screen) {
        const std::uint64_t before = screen.host().paintVisitCount();
        screen.host().setNeedsDisplay();
        screen.host().displayList();
        return screen.host().paintVisitCount() - before;
    }
};

TEST_F(LongList, AScrolledFrameLooksAtWhatIsInSight) { EXPECT_LE(viewsInScrolledFrame(1000), viewsInScrolledFrame(10)); }

TEST_F(LongList, AFrameInWhichARowFadesCostsNoMoreThanOneAtRest) {
    double opacity = 1;
    TouchScreen screen{[&] {
        return ScrollView{.content = {VStack{.content = {ForEach(1000, [&](int row) {
                                                 return box(300, 100, "row") | swiftui::opacity(row == 0 ? opacity : 1);
                                             })}}}};
    }};
    const std::uint64_t atRest = viewsInFrame(screen);

    opacity = 0;
    swiftui::withAnimation([&] { screen.host().setNeedsUpdate(); });
    screen.wait(0.1);

    ASSERT_TRUE(screen.host().isAnimating());
    EXPECT_EQ(viewsInFrame(screen), atRest);
}

// A row that moves may be seen anywhere, so each row is asked, but not what is inside.
TEST_F(LongList, AFrameInWhichARowMovesLooksIntoNoRowOutOfSight) {
    double scale = 1;
    constexpr int count = 1000;
    TouchScreen screen{[&] {
        return ScrollView{.content = {VStack{.content = {ForEach(count, [&](int row) {
                                                 return box(300, 100, "row") | swiftui::scaleEffect(row == 0 ? scale : 1);
                                             })}}}};
    }};
    const std::uint64_t atRest = viewsInFrame(screen);

    scale = 2;
    swiftui::withAnimation([&] { screen.host().setNeedsUpdate(); });
    screen.wait(0.1);

    ASSERT_TRUE(screen.host().isAnimating());
    EXPECT_LE(viewsInFrame(screen), atRest + count);
}

TEST_F(LongList, ShapesEachTextOnceHoweverOftenItIsLaidOut) {
    constexpr int count = 3000; // more than the shared cache of shaped texts keeps
    TouchScreen screen{[] {
        return ScrollView{
            .content = {VStack{.content = {ForEach(count, [](int row) { return swiftui::Text{"Row " + std::to_string(row)}; })}}}};
    }};
    EXPECT_EQ(screen.bed().fixedTextShaper()->shapeCount(), std::size_t(count));

    for (const double width : {20.0, 300.0, 40.0}) {
        screen.host().setSize({width, 400});
        screen.settle();
    }

    EXPECT_EQ(screen.bed().fixedTextShaper()->shapeCount(), std::size_t(count));
}

TEST_F(LongList, GivesBackWhatItsBuildNeeded) {
    const TouchScreen screen{[] { return rows(20'000); }};

    EXPECT_LE(swiftui::ElementArena::current().capacity_bytes(), std::size_t(1024 * 1024));
}

// --- Nothing in sight is left out

struct SomeRow {
    double length = 0;
    double shift = 0; // out of its place
    double scale = 1;
    bool isThere = true;
};

// A list of rows that overlap, leave gaps, stand out of their places and are missing here and there.
class SomeList {
public:
    explicit SomeList(unsigned seed) : m_random(seed) {
        m_axis = number(2) == 0 ? Axis::vertical : Axis::horizontal;
        m_isRightToLeft = number(3) == 0;
        m_spacing = double(number(30)) - 20;
        m_rows.resize(40 + number(60));
        for (SomeRow& row : m_rows) change(row);
    }

    unsigned number(unsigned end) { return unsigned(m_random() % end); }
    bool isRightToLeft() const { return m_isRightToLeft; }
    void changeSome() {
        for (SomeRow& row : m_rows)
            if (number(5) == 0) change(row);
    }
    View view() const {
        const auto rowAt = [this](int index) { return rowOf(m_rows[std::size_t(index)], index); };
        if (m_axis == Axis::vertical)
            return ScrollView{.content = {VStack{.spacing = m_spacing, .content = {ForEach(int(m_rows.size()), rowAt)}}}};
        return ScrollView{.axis = m_axis,
                          .content = {swiftui::HStack{.spacing = m_spacing, .content = {ForEach(int(m_rows.size()), rowAt)}}}};
    }

private:
    void change(SomeRow& row) {
        row = {.length = double(number(90)),
               .shift = number(6) == 0 ? double(number(600)) - 300 : 0,
               .scale = number(8) == 0 ? 3.0 : 1.0,
               .isThere = number(7) != 0};
    }
    View rowOf(const SomeRow& row, int index) const {
        if (!row.isThere) return {};
        const bool isVertical = m_axis == Axis::vertical;
        return box(isVertical ? 200 : row.length, isVertical ? row.length : 200, "row" + std::to_string(index)) |
               swiftui::offset(isVertical ? 0 : row.shift, isVertical ? row.shift : 0) | swiftui::scaleEffect(row.scale);
    }

    std::mt19937 m_random;
    Axis m_axis = Axis::vertical;
    bool m_isRightToLeft = false;
    double m_spacing = 0;
    std::vector<SomeRow> m_rows;
};

// With something that moves, every row is looked at.
DisplayList listWithEveryRowLookedAt(TouchScreen& screen) {
    screen.host().rootNode()->noteMovement(screen.now_s() + 1);
    screen.host().setNeedsDisplay();
    return screen.host().displayList();
}

bool showsTheSame(const DisplayList& a, const DisplayList& b) {
    return std::equal(a.commands.begin(), a.commands.end(), b.commands.begin(), b.commands.end(),
                      [&](const Command& inA, const Command& inB) { return paintsTheSame(a, inA, b, inB); });
}

class AnyLongList : public testing::TestWithParam<unsigned> {
protected:
    void SetUp() override {
        if (list.isRightToLeft()) screen.setRightToLeft();
    }
    void scrollSomewhere() {
        const double distance = double(list.number(6000)) - 3000;
        screen.host().scroll({150, 200}, {distance, distance});
        screen.settle();
    }

    SomeList list{GetParam()};
    TouchScreen screen{[this] { return list.view(); }};
};

TEST_P(AnyLongList, ShowsEveryRowThatIsInSight) {
    for (int step = 0; step < 10; ++step) {
        if (step % 3 == 2) {
            list.changeSome();
            screen.rebuild();
        }
        scrollSomewhere();
        screen.wait(2); // the last movement is over
        screen.host().setNeedsDisplay();
        const DisplayList shown = screen.host().displayList();

        EXPECT_TRUE(showsTheSame(shown, listWithEveryRowLookedAt(screen)));
    }
}

TEST_P(AnyLongList, IsTouchedWhereItIsSeen) {
    for (int step = 0; step < 30; ++step) {
        scrollSomewhere();
        screen.wait(2);
        const Point at{double(list.number(300)), double(list.number(400))};
        const swiftui::Node* hit = screen.host().nodeAt(at);

        screen.host().rootNode()->noteMovement(screen.now_s() + 1);

        EXPECT_EQ(hit, screen.host().nodeAt(at));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, AnyLongList, testing::Range(0u, 40u));

} // namespace
} // namespace proupsells::tests

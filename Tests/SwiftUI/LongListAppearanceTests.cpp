// Who is asked whether it is on screen while a long list scrolls.
#include <random>

#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Tests/SwiftUI/Rows.hpp"

namespace proupsells::tests {
namespace {

using testing::ElementsAre;

int questionCount = 0;

// Counts how often it is asked.
struct Questioned {
    View modified(View content) &&;
};

class QuestionedNode final : public swiftui::ModifierNode, public swiftui::AppearanceObserver {
public:
    void adopt(Questioned&&, swiftui::UpdatePass&) {
        if (isNew()) observeAppearance(host());
    }
    void appearanceChanged(bool) override {}
    Node& observedNode() override {
        ++questionCount;
        return *this;
    }
};

View Questioned::modified(View content) && { return swiftui::newModifier<QuestionedNode>(std::move(*this), content); }

View questionedRows(int count) {
    return ScrollView{.content = {VStack{.spacing = 0, .content = {ForEach(count, [](int row) {
                                                           return box(300, 100, "row" + std::to_string(row)) | Questioned{};
                                                       })}}}};
}

// In a scrolled frame with no layout before it.
int questionsInScrolledFrame(int rowCount) {
    TouchScreen screen{[&] { return questionedRows(rowCount); }};
    for (int frame = 0; frame < 2; ++frame) {
        questionCount = 0;
        screen.host().scroll({100, 100}, {0, 100});
        screen.settle();
    }
    return questionCount;
}

TEST(LongListAppearances, OnlyRowsNearTheScreenAreAskedInAScrolledFrame) {
    EXPECT_EQ(questionsInScrolledFrame(1000), questionsInScrolledFrame(10));
}

// What appears and disappears, and in which order.
class AppearingRows {
public:
    using Row = std::function<View(int index)>;

    AppearingRows(int count, Row row) : m_count(count), m_row(std::move(row)) {}

    View view() {
        return ScrollView{.content = {VStack{.spacing = 0, .content = {ForEach(m_count, [this](int row) {
                                                               return m_row(row) |
                                                                      swiftui::onAppear([this, row] { note("+", row); }) |
                                                                      swiftui::onDisappear([this, row] { note("-", row); });
                                                           })}}}};
    }
    std::vector<std::string> takeEvents() { return std::exchange(m_events, {}); }

private:
    void note(const char* sign, int row) { m_events.push_back(sign + std::to_string(row)); }

    int m_count;
    Row m_row;
    std::vector<std::string> m_events;
};

TEST(LongListAppearances, AreToldFrameByFrame) {
    AppearingRows list(100, [](int) { return box(300, 100, "row"); });
    TouchScreen screen{[&] { return list.view(); }};
    EXPECT_THAT(list.takeEvents(), ElementsAre("+0", "+1", "+2", "+3"));

    screen.host().scroll({100, 100}, {0, 150});
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("-0", "+4", "+5"));

    screen.host().scroll({100, 100}, {0, 50});
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("-1"));

    screen.host().scroll({100, 100}, {0, 9000});
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("-2", "-3", "-4", "-5", "+92", "+93", "+94", "+95"));
}

TEST(LongListAppearances, FollowRowsThatComeNearByALayout) {
    double height = 200;
    AppearingRows list(100, [&](int) { return box(300, height, "row"); });
    TouchScreen screen{[&] { return list.view(); }};
    // From then on only those near the screen are asked.
    screen.host().scroll({100, 100}, {0, 10});
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("+0", "+1", "+2"));

    height = 100;
    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_THAT(list.takeEvents(), ElementsAre("+3", "+4"));
}

TEST(LongListAppearances, FollowAHostThatIsHiddenAndShown) {
    AppearingRows list(100, [](int) { return box(300, 200, "row"); });
    TouchScreen screen{[&] { return list.view(); }};
    screen.host().scroll({100, 100}, {0, 400});
    screen.settle();
    list.takeEvents();

    screen.host().setVisible(false);
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("-2", "-3"));

    screen.host().setVisible(true);
    screen.settle();
    EXPECT_THAT(list.takeEvents(), ElementsAre("+2", "+3"));
}

// With a change to what is shown before every scroll, everybody is asked each time.
TEST(LongListAppearances, AreTheSameWhetherEverybodyIsAskedOrNot) {
    std::mt19937 random(7);
    const auto row = [](int index) {
        const View content = box(300, double(index * 37 % 90), "row");
        return index % 5 == 0   ? content | swiftui::offset(0, 40)
               : index % 7 == 0 ? View(swiftui::ZStack{.content = {content}})
                                : content;
    };
    AppearingRows asked(200, row), found(200, row);
    TouchScreen screenOfAsked{[&] { return asked.view(); }};
    const auto hostOfFound = swiftui::ViewHost::create([&] { return found.view(); });
    hostOfFound->setSize({300, 400});
    screenOfAsked.settle();

    for (int step = 0; step < 100; ++step) {
        const double distance = double(random() % 1200) - 600;
        screenOfAsked.host().setNeedsUpdate();
        screenOfAsked.host().scroll({100, 100}, {0, distance});
        hostOfFound->scroll({100, 100}, {0, distance});
        screenOfAsked.settle();

        EXPECT_EQ(found.takeEvents(), asked.takeEvents());
    }
}

TEST(LongListAppearances, GoOnAfterRowsHaveGone) {
    // 50 of them, and one.
    for (const int remaining : {50, 99}) {
        int count = 100;
        std::vector<std::string> events;
        TouchScreen screen{[&] {
            return ScrollView{.content = {VStack{.spacing = 0, .content = {ForEach(count, [&](int row) {
                                                                   return box(300, 100, "row") | swiftui::onAppear([&, row] {
                                                                              events.push_back(std::to_string(row));
                                                                          });
                                                               })}}}};
        }};
        screen.host().scroll({100, 100}, {0, 100});
        screen.settle();
        count = remaining;
        screen.rebuild();
        events.clear();

        screen.host().scroll({100, 100}, {0, 50});
        screen.settle();
        EXPECT_THAT(events, ElementsAre("5"));
        events.clear();
        screen.host().scroll({100, 100}, {0, 9900});
        screen.settle();

        EXPECT_THAT(events, ElementsAre(std::to_string(remaining - 4), std::to_string(remaining - 3), std::to_string(remaining - 2),
                                        std::to_string(remaining - 1)));
    }
}

} // namespace
} // namespace proupsells::tests

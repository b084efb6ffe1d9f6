#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QWindow>

#include "Backends/Qt/QtAccessibility.hpp"
#include "Platform/Host/WindowContent.hpp"

using namespace proupsells;

using accessibility::SemanticNode;
using accessibility::Traits;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TreeContent : public host::WindowContent {
public:
    void setSize(geometry::Size, geometry::PhysicalInsets) override {}
    void touch(const host::Touch&) override {}
    void scroll(geometry::Point, geometry::Point) override {}
    bool key(host::Key, bool) override { return false; }
    void paint(graphics::DisplayList&) override {}
    bool isAnimating() const override { return false; }
    void setNeedsDisplayHandler(std::function<void()>) override {}
    SemanticNode semanticTree() override {
        ++readCount;
        return tree;
    }

    SemanticNode tree;
    int readCount = 0;
};

SemanticNode textNode(const std::string& text) {
    SemanticNode node{.type = "Text", .frame = {{1, 2}, {30, 10}}, .isOnScreen = true};
    node.text = accessibility::TextInfo{.text = text};
    return node;
}

SemanticNode buttonNode(const std::string& identifier, const std::string& text, std::function<void()> activate = {}) {
    SemanticNode node{.type = "Button", .frame = {{10, 20}, {100, 44}}, .isOnScreen = true, .identifier = identifier};
    node.traits = Traits::button;
    node.isControl = true;
    node.activate = std::move(activate);
    node.children = {textNode(text)};
    return node;
}

class Accessibility : public testing::Test {
protected:
    Accessibility() {
        content.tree.isOnScreen = true;
        window.setTitle("Paywall");
        window.resize(200, 100);
    }

    void record(QAccessibleEvent* event) {
        QAccessibleInterface* source = event->accessibleInterface();
        events.emplace_back(event->type(), source ? source->text(QAccessible::Name).toStdString() : "");
    }

    QAccessibleInterface* element(int index) { return accessibility.root()->child(index); }
    std::vector<std::string> names() {
        std::vector<std::string> names;
        for (int index = 0; index < accessibility.root()->childCount(); ++index)
            names.push_back(element(index)->text(QAccessible::Name).toStdString());
        return names;
    }

    bool isListening = true;
    std::vector<std::pair<QAccessible::Event, std::string>> events;
    QWindow window;
    TreeContent content;
    qtbackend::QtAccessibility accessibility{
        window, content, {.isThere = [this] { return isListening; }, .tell = [this](QAccessibleEvent* event) { record(event); }}};
};

} // namespace

TEST_F(Accessibility, OffersTextsAndControlsAsAFlatList) {
    SemanticNode inner{.type = "VStack", .isOnScreen = true};
    inner.children = {textNode("Endless templates"), buttonNode("subscribe", "Subscribe Now")};
    content.tree.children = {inner, textNode("Disclaimer")};

    EXPECT_EQ(accessibility.root()->role(), QAccessible::Window);
    EXPECT_EQ(accessibility.root()->text(QAccessible::Name), "Paywall");
    EXPECT_THAT(names(), ElementsAre("Endless templates", "Subscribe Now", "Disclaimer"));
    EXPECT_EQ(element(0)->role(), QAccessible::StaticText);
    EXPECT_EQ(element(1)->role(), QAccessible::Button);
    EXPECT_EQ(accessibility.root()->indexOfChild(element(1)), 1);
    EXPECT_EQ(element(1)->parent(), accessibility.root());
}

TEST_F(Accessibility, TellsRolesStatesAndPlaces) {
    SemanticNode plan = buttonNode("plan.yearly", "Annually");
    plan.traits = Traits::button | Traits::selected;
    plan.value = "$99.99 per year";
    SemanticNode heading = textNode("Free");
    heading.traits = Traits::header;
    SemanticNode pages{
        .type = "UIPageControl", .frame = {{0, 0}, {40, 10}}, .isOnScreen = true, .label = "Pages", .traits = Traits::adjustable};
    pages.isControl = true;
    SemanticNode disabled = buttonNode("subscribe", "Subscribe");
    disabled.traits = Traits::button | Traits::disabled;
    content.tree.children = {plan, heading, pages, disabled};

    EXPECT_TRUE(element(0)->state().selected);
    EXPECT_EQ(element(0)->text(QAccessible::Value), "$99.99 per year");
    EXPECT_EQ(element(0)->rect(), QRect(window.mapToGlobal(QPoint(10, 20)), QSize(100, 44)));
    EXPECT_EQ(element(1)->role(), QAccessible::Heading);
    EXPECT_EQ(element(2)->role(), QAccessible::Slider);
    EXPECT_TRUE(element(3)->state().disabled);
    EXPECT_FALSE(element(3)->state().focusable);
}

TEST_F(Accessibility, LeavesOutWhatNobodyCanReach) {
    SemanticNode hidden = textNode("transparent");
    hidden.isOnScreen = false;
    hidden.opacity = 0;
    SemanticNode scrolledAway = textNode("further down");
    scrolledAway.isOnScreen = false;
    scrolledAway.reveal = [] {};
    SemanticNode decoration{.type = "Shape", .isOnScreen = true};
    content.tree.children = {hidden, scrolledAway, decoration};

    EXPECT_THAT(names(), ElementsAre("further down"));
    EXPECT_TRUE(element(0)->state().offscreen);
}

TEST_F(Accessibility, PressesControls) {
    int presses = 0, reveals = 0;
    SemanticNode button = buttonNode("close", "Close", [&] { ++presses; });
    button.isOnScreen = false;
    button.reveal = [&] { ++reveals; };
    content.tree.children = {button};

    QAccessibleActionInterface* actions = element(0)->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_THAT(actions->actionNames(), ElementsAre(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    actions->doAction("no such action");

    EXPECT_EQ(presses, 1);
    EXPECT_EQ(reveals, 2);
}

TEST_F(Accessibility, StepsAdjustableControls) {
    std::vector<int> steps;
    SemanticNode pages{.type = "UIPageControl", .isOnScreen = true, .label = "Pages", .traits = Traits::adjustable};
    pages.isControl = true;
    pages.adjust = [&](int step) { steps.push_back(step); };
    content.tree.children = {pages};

    element(0)->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    element(0)->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());

    EXPECT_THAT(steps, ElementsAre(1, -1));
}

TEST_F(Accessibility, KeepsTheObjectsOfWhatStays) {
    content.tree.children = {buttonNode("plan", "Annually"), buttonNode("subscribe", "Subscribe Now")};
    QAccessibleInterface* subscribe = element(1);

    content.tree.children = {textNode("new"), buttonNode("subscribe", "Start Your Free Trial")};
    accessibility.update();

    EXPECT_THAT(names(), ElementsAre("new", "Start Your Free Trial"));
    EXPECT_EQ(element(1), subscribe);
    EXPECT_THAT(events, testing::Contains(std::pair(QAccessible::NameChanged, std::string("Start Your Free Trial"))));
    EXPECT_THAT(events, testing::Contains(std::pair(QAccessible::ObjectReorder, std::string("Paywall"))));
}

TEST_F(Accessibility, TellsNothingWhereNothingHasChanged) {
    content.tree.children = {buttonNode("plan", "Annually")};
    names();
    events.clear();
    accessibility.update();

    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Accessibility, ReadsTheTreeOnlyForThoseWhoListen) {
    names();
    isListening = false;
    accessibility.update();
    accessibility.update();

    EXPECT_EQ(content.readCount, 1);
    isListening = true;
    accessibility.update();
    EXPECT_EQ(content.readCount, 2);
}

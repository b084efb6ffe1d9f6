// The plan button as its maker makes it.
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "ProUpsells/CallToActionButtonProvider.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using Event = uikit::UIControl::Event;
using ::testing::ElementsAre;

namespace {

class Chooser {
public:
    void choose(uikit::UIControl& sender) { senders.push_back(&sender); }
    std::vector<uikit::UIControl*> senders;
};

class AnsweringController : public uikit::UIViewController {
public:
    bool respond(uikit::Selector action, uikit::UIResponder*) override {
        actions.emplace_back(action.name);
        return true;
    }
    std::vector<std::string> actions;
};

class StorePlanButton : public StoreTest {};

} // namespace

TEST_F(StorePlanButton, CallsItsTargetOnEachOfTheEvents) {
    const auto chooser = std::make_shared<Chooser>();
    const auto button = CallToActionButtonProvider::button(std::weak_ptr<Chooser>(chooser), &Chooser::choose,
                                                           {Event::touchUpInside, Event::touchDown});

    button->sendActions(Event::touchDown);
    button->sendActions(Event::touchUpInside);
    button->sendActions(Event::touchUpOutside);

    EXPECT_THAT(chooser->senders, ElementsAre(button.get(), button.get()));
}

TEST_F(StorePlanButton, AsksUpTheResponderChainWithoutATarget) {
    const auto controller = std::make_shared<AnsweringController>();
    show(controller);
    const auto button = CallToActionButtonProvider::button(nullptr, uikit::Selector{"choosePlan"}, {Event::touchUpInside});
    controller->view()->addSubview(button);

    button->sendActions(Event::touchUpInside);

    EXPECT_THAT(controller->actions, ElementsAre("choosePlan"));
}

TEST_F(StorePlanButton, ShowsItsTitleAndAnArrowInTheMiddle) {
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto button = CallToActionButtonProvider::button(nullptr, uikit::Selector{"choosePlan"}, {Event::touchUpInside});
    button->setTranslatesAutoresizingMaskIntoConstraints(true);
    button->setFrame({{22, 100}, {331, 60}});
    root->view()->addSubview(button);
    show(root);

    const accessibility::Node node = tests::firstOfType(tree(), "UIButton");
    EXPECT_EQ(node.shape->fill, "dynamicColor.22");
    EXPECT_EQ(node.label, "Choose Your Plan");
    // 16 characters of 9 points and 2 more after each, 16 points, an arrow of 24 × 16: 216 points in the middle of 331.
    const accessibility::Node label = tests::firstOfType(node, "UILabel"), arrow = tests::firstOfType(node, "UIImageView");
    EXPECT_EQ(label.frame, (geometry::Rect{{22 + 57.5, 118.75}, {176, 22.5}}));
    EXPECT_EQ(arrow.frame, (geometry::Rect{{22 + 57.5 + 192, 122}, {24, 16}}));
    EXPECT_EQ(arrow.image, "Button_Arrow_Right");
    EXPECT_EQ(label.text->text, "Choose Your Plan");
    EXPECT_EQ(label.text->weight, 2);
    EXPECT_EQ(label.text->size, 18);
    EXPECT_EQ(label.text->color, "dynamicColor.16");
}

TEST_F(StorePlanButton, TakesEveryTouchItself) {
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto button = CallToActionButtonProvider::button(nullptr, uikit::Selector{"choosePlan"}, {Event::touchUpInside});
    button->setTranslatesAutoresizingMaskIntoConstraints(true);
    button->setFrame({{22, 100}, {331, 60}});
    root->view()->addSubview(button);
    show(root);

    for (const geometry::Point point : {geometry::Point{1, 1}, {165, 30}, {320, 59}})
        EXPECT_EQ(button->hitTest(point), button.get());
}

TEST_F(StorePlanButton, CapitalisesTheHostsTranslation) {
    const HostTranslations german({{"choose your plan", "wähle deinen plan"}}, "de");

    const auto button = CallToActionButtonProvider::button(nullptr, uikit::Selector{"choosePlan"}, {Event::touchUpInside});

    EXPECT_EQ(button->accessibilityLabel, "Wähle Deinen Plan");
}

} // namespace proupsells::tests

// The plan button as its maker makes it.
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "ProUpsells/CallToActionButtonProvider.hpp"
#include "ProUpsells/PlanButton.hpp"
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

std::shared_ptr<uikit::UIButton> makeButton() {
    return CallToActionButtonProvider::button(nullptr, uikit::Selector{"choosePlan"}, {Event::touchUpInside});
}

class StorePlanButton : public StoreTest {
protected:
    // The button alone, 331 × 60 at (22, 100).
    std::shared_ptr<uikit::UIButton> showButton() {
        const auto root = std::make_shared<uikit::UIViewController>();
        auto button = makeButton();
        button->setTranslatesAutoresizingMaskIntoConstraints(true);
        button->setFrame({{22, 100}, {331, 60}});
        root->view()->addSubview(button);
        show(root);
        return button;
    }
    void setRightToLeft(bool isRightToLeft) {
        uikit::UITraitCollection traits = window->traits();
        traits.layoutDirection = isRightToLeft ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
        window->setTraits(traits);
        bed.settle();
    }
    accessibility::SemanticNode label() { return tests::firstOfType(find("store.choosePlan"), "UILabel"); }
    accessibility::SemanticNode arrow() { return tests::firstOfType(find("store.choosePlan"), "UIImageView"); }
    // How the arrow is turned where it is painted.
    geometry::Transform paintedArrow() {
        const graphics::DisplayList list = painted();
        for (const graphics::Command& command : list.commands)
            if (command.kind == graphics::CommandKind::image &&
                list.images[std::size_t(command.resource)]->name == "Button_Arrow_Right")
                return command.transform < 0 ? geometry::Transform{} : list.transforms[std::size_t(command.transform)];
        throw std::runtime_error("the arrow is not painted");
    }
};

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
    const auto button = makeButton();
    controller->view()->addSubview(button);

    button->sendActions(Event::touchUpInside);

    EXPECT_THAT(controller->actions, ElementsAre("choosePlan"));
}

TEST_F(StorePlanButton, ShowsItsTitleAndAnArrowInTheMiddle) {
    showButton();

    const accessibility::SemanticNode node = tests::firstOfType(tree(), "UIButton");
    EXPECT_EQ(node.shape->fill, "dynamicColor.22");
    EXPECT_EQ(node.label, "Choose Your Plan");
    // 16 characters of 9 points and 2 more after each, 16 points, an arrow of 24 × 16: 216 points in the middle of 331.
    const accessibility::SemanticNode label = tests::firstOfType(node, "UILabel"), arrow = tests::firstOfType(node, "UIImageView");
    EXPECT_EQ(label.frame, (geometry::Rect{{22 + 57.5, 118.75}, {176, 22.5}}));
    EXPECT_EQ(arrow.frame, (geometry::Rect{{22 + 57.5 + 192, 122}, {24, 16}}));
    EXPECT_EQ(arrow.image, "Button_Arrow_Right");
    EXPECT_EQ(label.text->text, "Choose Your Plan");
    EXPECT_EQ(label.text->weight, 2);
    EXPECT_EQ(label.text->size, 18);
    EXPECT_EQ(label.text->color, "dynamicColor.16");
}

TEST_F(StorePlanButton, TakesEveryTouchItself) {
    const auto button = showButton();

    for (const geometry::Point point : {geometry::Point{1, 1}, {165, 30}, {320, 59}})
        EXPECT_EQ(button->hitTest(point), button.get());
}

TEST_F(StorePlanButton, CapitalisesTheHostsTranslation) {
    const HostTranslations german({{"choose your plan", "wähle deinen plan"}}, "de");

    EXPECT_EQ(makeButton()->accessibilityLabel, "Wähle Deinen Plan");
}

TEST_F(StorePlanButton, ShrinksATitleThatIsTooLong) {
    // 22 characters of 9 points and 2 more after each are 242 points; there is room for 320 - 2 · (22 + 16) - 16 - 24.
    const HostTranslations german({{"choose your plan", "wähle jetzt den tarif!"}}, "de");
    window->setSize({320, 700}, {});
    showPage();

    EXPECT_FALSE(label().text->isTruncated);
    EXPECT_LT(label().text->size, 18);
    EXPECT_GE(label().text->size, 18 * 0.7);
    EXPECT_EQ(label().frame.minX(), 22 + 16);
    EXPECT_EQ(label().frame.width(), 204);
    EXPECT_EQ(arrow().frame, (geometry::Rect{{320 - 22 - 16 - 24, arrow().frame.minY()}, {24, 16}}));
}

TEST_F(StorePlanButton, KeepsItsArrowWholeWhateverTheWidth) {
    const auto button = showButton();
    for (const double width : {331.0, 240.0, 160.0, 120.0, 80.0, 60.0}) {
        button->setFrame({{22, 100}, {width, 60}});
        bed.settle();
        const graphics::DisplayList list = painted();
        const auto image = std::find_if(list.commands.begin(), list.commands.end(), [](const graphics::Command& command) {
            return command.kind == graphics::CommandKind::image;
        });

        ASSERT_NE(image, list.commands.end()) << width;
        EXPECT_EQ(image->frame.size, (geometry::Size{24, 16})) << width;
        const double arrowWidth = tests::firstOfType(tree(), "UIImageView").frame.width();
        EXPECT_TRUE(arrowWidth == 24 || width < 72) << width << ": " << arrowWidth;
    }
}

TEST_F(StorePlanButton, ShrinksATitleToElevenPointsWhateverTheTextSize) {
    for (const auto& [title, isTruncated] :
         {std::pair{"den passenden tarif auswählen!", false}, {"den allerbesten tarif jetzt auswählen!", true}}) {
        const HostTranslations german({{"choose your plan", title}}, "de");
        window->setSize({320, 700}, {});
        for (int category = 0; category < graphics::contentSizeCategoryCount; ++category) {
            uikit::UITraitCollection traits = window->traits();
            traits.preferredContentSizeCategory = graphics::ContentSizeCategory(category);
            window->setTraits(traits);
            showPage();

            EXPECT_EQ(label().text->isTruncated, isTruncated) << title << " at " << category;
            EXPECT_GE(label().text->size, 11 - 1e-6) << title << " at " << category;
        }
    }
}

TEST_F(StorePlanButton, CutsATitleThatIsFarTooLong) {
    const HostTranslations german({{"choose your plan", "wähle den tarif, der am besten zu dir und deinen projekten passt"}}, "de");
    for (const bool isRightToLeft : {false, true}) {
        setRightToLeft(isRightToLeft);
        for (const double width : {320.0, 375.0, 700.0}) {
            window->setSize({width, 700}, {});
            showPage();

            const geometry::Rect button = frame("store.choosePlan");
            EXPECT_EQ(button, (geometry::Rect{{22, button.minY()}, {width - 44, 60}}));
            EXPECT_GE(std::min(label().frame.minX(), arrow().frame.minX()), button.minX() + 16);
            EXPECT_LE(std::max(label().frame.maxX(), arrow().frame.maxX()), button.maxX() - 16);
            EXPECT_EQ(arrow().frame.size, (geometry::Size{24, 16}));
            EXPECT_EQ(label().text->isTruncated, width < 700);
            EXPECT_EQ(find("store.choosePlan").label, "Wähle Den Tarif, Der Am Besten Zu Dir Und Deinen Projekten Passt");
        }
    }
}

TEST_F(StorePlanButton, PointsWhereTheLanguageRuns) {
    showPage();
    EXPECT_LT(label().frame.maxX(), arrow().frame.minX());
    EXPECT_TRUE(paintedArrow().isTranslation());

    setRightToLeft(true);
    EXPECT_EQ(arrow().frame.maxX() + 16, label().frame.minX());
    EXPECT_EQ(paintedArrow().a, -1);
    EXPECT_EQ(paintedArrow().d, 1);

    setRightToLeft(false);
    EXPECT_TRUE(paintedArrow().isTranslation());
}

TEST_F(StorePlanButton, ReadsItsTitleAnew) {
    PlanButton button;
    EXPECT_EQ(button.accessibilityLabel, "Choose Your Plan");
    const HostTranslations german({{"choose your plan", "wähle deinen plan"}}, "de");

    button.applyTexts();

    EXPECT_EQ(button.accessibilityLabel, "Wähle Deinen Plan");
    EXPECT_EQ(button.titleLabel()->text(), "Wähle Deinen Plan");
}

} // namespace proupsells::tests

#include "ProUpsells/RadioPicker.hpp"

#include <gmock/gmock.h>

#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/FreeTrialCapsule.hpp"
#include "ProUpsells/RadioPickerButton.hpp"
#include "ProUpsells/RadioPickerButtonBadge.hpp"
#include "ProUpsells/RadioPickerSelectionIndicator.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using geometry::Rect;
using geometry::Size;
using swiftui::Binding;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<RadioPickerItem> plans(std::vector<std::string> ids) {
    std::vector<RadioPickerItem> items;
    for (const std::string& id : ids)
        items.push_back({.id = id, .title = "Plan " + id, .subtitle = {"$1", {.font = {.size = 16}}}});
    return items;
}

Binding<std::string> constant(std::string id) { return Binding<std::string>::constant(std::move(id)); }

// The picker as the options block colours it.
Screen pickerScreen(std::vector<RadioPickerItem> items, Binding<std::string> selectedItem) {
    return Screen(std::function<swiftui::View()>([=]() -> swiftui::View {
                      return RadioPicker{.items = items, .selectedItem = selectedItem} |
                             swiftui::foregroundStyle(graphics::Color{"accent", {}, {}});
                  }),
                  Size{343, 400});
}

Screen cardScreen(RadioPickerItem item, bool selected) {
    return Screen(RadioPickerButton{.item = std::move(item), .selected = selected}, Size{343, 200});
}

RadioPickerItem plan(std::optional<std::string> trialLength, bool hasUsedFreeTrial, std::optional<std::string> badge) {
    RadioPickerItem item = plans({"a"})[0];
    item.trialLength = std::move(trialLength);
    item.hasUsedFreeTrial = hasUsedFreeTrial;
    item.badge = std::move(badge);
    return item;
}

TEST(RadioPicker, OnlyTheBoundItemIsMarked) {
    Screen screen = pickerScreen(plans({"a", "b", "c"}), constant("b"));

    EXPECT_THAT(screen.selectedIdentifiers(), ElementsAre("plan.b"));
    std::vector<double> borderOpacities, ringScales, dotOpacities;
    for (const auto& card : allOfType(screen.tree(), "RadioPickerButton")) borderOpacities.push_back(card.children[1].opacity);
    for (const auto& indicator : allOfType(screen.tree(), "RadioPickerSelectionIndicator")) {
        const auto circles = allOfType(indicator, "Circle");
        ASSERT_EQ(circles.size(), 4u);
        ringScales.push_back(circles[2].scale.value_or(1));
        dotOpacities.push_back(circles[3].opacity);
    }
    EXPECT_THAT(borderOpacities, ElementsAre(0, 1, 0));
    EXPECT_THAT(ringScales, ElementsAre(0.9, 1, 0.9));
    EXPECT_THAT(dotOpacities, ElementsAre(0, 1, 0));
}

TEST(RadioPicker, DrawsNothingWithoutItems) {
    Screen screen = pickerScreen({}, constant(""));

    EXPECT_THAT(texts(screen.tree()), IsEmpty());
    EXPECT_THAT(allOfType(screen.tree(), "RadioPickerButton"), IsEmpty());
}

TEST(RadioPicker, MarksNothingForATextThatNoItemHas) {
    EXPECT_THAT(pickerScreen(plans({"a", "b"}), constant("c")).selectedIdentifiers(), IsEmpty());
    EXPECT_THAT(pickerScreen(plans({"a", "b"}), constant("A")).selectedIdentifiers(), IsEmpty());
}

TEST(RadioPicker, MarksBothOfTwoItemsWithOneId) {
    Screen screen = pickerScreen(plans({"a", "b", "a"}), constant("a"));

    EXPECT_THAT(screen.selectedIdentifiers(), ElementsAre("plan.a", "plan.a"));
}

TEST(RadioPicker, WritesTheTappedItemsId) {
    std::vector<std::string> written;
    const Binding<std::string> binding([] { return std::string("a"); }, [&](const std::string& id) { written.push_back(id); });
    Screen screen = pickerScreen(plans({"a", "b", "c"}), binding);

    screen.tap("plan.c");
    screen.tap("plan.a");

    EXPECT_THAT(written, ElementsAre("c", "a"));
}

TEST(RadioPicker, AnswersInEveryCornerOfACard) {
    std::vector<std::string> written;
    const Binding<std::string> binding([] { return std::string("a"); }, [&](const std::string& id) { written.push_back(id); });
    Screen screen = pickerScreen(plans({"a", "b"}), binding);
    const Rect card = screen.frame("plan.b");

    screen.tap({card.minX() + 1, card.minY() + 1});
    screen.tap({card.maxX() - 1, card.minY() + 1});
    screen.tap({card.midX() + 60, card.midY()});
    screen.tap({card.minX() + 1, card.maxY() - 1});
    screen.tap({card.maxX() - 1, card.maxY() - 1});

    EXPECT_THAT(written, ElementsAre("b", "b", "b", "b", "b"));
}

TEST(RadioPicker, MovesNothingWhenTheSelectionChanges) {
    Screen first = pickerScreen(plans({"a", "b"}), constant("a"));
    Screen second = pickerScreen(plans({"a", "b"}), constant("b"));

    EXPECT_EQ(first.frame("plan.a"), second.frame("plan.a"));
    EXPECT_EQ(first.frame("plan.b"), second.frame("plan.b"));
}

TEST(RadioPicker, StacksItsCards16Apart) {
    Screen screen = pickerScreen(plans({"a", "b"}), constant("a"));

    EXPECT_EQ(screen.frame("plan.a").size, (Size{343, 90}));
    EXPECT_EQ(screen.frame("plan.b").minY() - screen.frame("plan.a").maxY(), 16);
}

TEST(RadioPickerButton, PutsTheIndicatorAtItsTrailingEnd) {
    Screen screen = cardScreen(plan({}, false, {}), false);
    const Rect card = screen.frame("plan.a");
    const Rect indicator = screen.frameOfType("RadioPickerSelectionIndicator");

    EXPECT_EQ(indicator.size, (Size{24, 24}));
    EXPECT_EQ(indicator.maxX(), card.maxX() - 14);
    EXPECT_EQ(indicator.midY(), card.midY());
}

TEST(RadioPickerButton, ShowsTheTrialOnlyWhileItCanBeHad) {
    EXPECT_TRUE(cardScreen(plan("1 week", false, {}), false).has("trial.a"));
    EXPECT_FALSE(cardScreen(plan("1 week", true, {}), false).has("trial.a"));
    EXPECT_FALSE(cardScreen(plan({}, false, {}), false).has("trial.a"));
    EXPECT_EQ(cardScreen(plan("1 week", false, {}), false).find("trial.a").label, "Free Trial Capsule");
}

TEST(RadioPickerButton, ShowsABadgeWhereThereIsOne) {
    EXPECT_FALSE(cardScreen(plan({}, false, {}), false).has("badge.a"));
    EXPECT_THAT(texts(cardScreen(plan({}, false, "Best Value"), false).find("badge.a")), ElementsAre("Best Value"));
    EXPECT_THAT(texts(cardScreen(plan({}, false, "Save 45%"), false).find("badge.a")), ElementsAre("Save 45%"));
}

TEST(RadioPickerButton, SetsTheBadgeAstrideItsTopEdge) {
    Screen screen = cardScreen(plan({}, false, "Best Value"), false);
    const Rect card = screen.frame("plan.a"), badge = screen.frame("badge.a");

    // The badge stands in the middle of a line 1 high on the card's top edge.
    EXPECT_EQ(badge.midY(), card.minY() + 0.5);
    EXPECT_EQ(badge.maxX(), card.maxX() - 16);
    EXPECT_EQ(badge.size, (Size{10 * 5 + 8, 12.5 + 4}));
}

TEST(RadioPickerButton, LiesOnARoundedCardInARoundedBorder) {
    for (const bool isSelected : {false, true}) {
        SCOPED_TRACE(isSelected);
        Screen screen = pickerScreen(plans({"a"}), constant(isSelected ? "a" : "b"));
        const auto shapes = allOfType(screen.find("plan.a"), "RoundedRectangle");
        const auto all = allOfType(screen.tree(), "RoundedRectangle");
        ASSERT_EQ(shapes.size(), 1u);
        ASSERT_EQ(all.size(), 2u);

        const auto& card = shapes[0];
        EXPECT_EQ(card.frame, screen.frame("plan.a"));
        EXPECT_EQ(card.shape->fill, "velaSecondaryAppBackground");
        EXPECT_EQ(card.shape->cornerRadius, 6);
        const auto& border = all[1];
        EXPECT_EQ(border.frame, screen.frame("plan.a"));
        EXPECT_EQ(border.shape->fill, "");
        EXPECT_EQ(border.shape->stroke, "accent");
        EXPECT_EQ(border.shape->lineWidth, 2);
        EXPECT_EQ(border.shape->cornerRadius, 6);
        EXPECT_EQ(border.opacity, isSelected ? 1 : 0);
    }
}

TEST(RadioPickerButton, HasContinuousCornersOnItsBorderAlone) {
    Screen screen = pickerScreen(plans({"a"}), constant("a"));
    graphics::DisplayList list;
    screen.window().paint(list);
    std::vector<geometry::CornerStyle> fills, strokes;
    for (const graphics::Command& command : list.commands) {
        if (command.kind == graphics::CommandKind::fillRoundedRectangle) fills.push_back(command.cornerStyle);
        if (command.kind == graphics::CommandKind::strokeRoundedRectangle) strokes.push_back(command.cornerStyle);
    }

    EXPECT_THAT(fills, ElementsAre(geometry::CornerStyle::circular));
    EXPECT_THAT(strokes, ElementsAre(geometry::CornerStyle::continuous));
}

TEST(RadioPickerButton, ColoursItsTexts) {
    Screen screen = cardScreen(plan({}, false, {}), true);
    const auto cardTexts = allOfType(screen.tree(), "Text");

    ASSERT_EQ(cardTexts.size(), 2u);
    EXPECT_EQ(cardTexts[0].text->font, "bodyLarge");
    EXPECT_EQ(cardTexts[0].text->color, "ContentColor.primary");
    EXPECT_EQ(cardTexts[1].text->color, "velaSecondaryLabel");
}

TEST(RadioPickerButton, IsNamedByItsTitleAndPrice) {
    RadioPickerItem item = plan({}, false, {});
    item.title = "Annually";
    item.subtitle = {" $99 per year", {.font = {.size = 16}}};

    const auto card = cardScreen(item, true).find("plan.a");
    EXPECT_EQ(card.label, "Annually, $99 per year");
    EXPECT_TRUE(card.isControl);
    EXPECT_TRUE(contains(card.traits, accessibility::Traits::button | accessibility::Traits::selected));
}

TEST(RadioPickerButtonBadge, IsShownInCapitalsOnItsSurroundingsColour) {
    Screen screen(std::function<swiftui::View()>([]() -> swiftui::View {
                      return RadioPickerButtonBadge{"Best Value"} | swiftui::foregroundStyle(graphics::Color{"accent", {}, {}});
                  }),
                  Size{100, 100});
    const auto text = firstOfType(screen.tree(), "Text");

    EXPECT_EQ(text.text->text, "Best Value");
    EXPECT_EQ(text.text->font, "Quenby-Bold");
    EXPECT_EQ(text.text->size, 10);
    EXPECT_EQ(text.text->color, "velaLightText");
    const auto plate = firstOfType(screen.tree(), "RoundedRectangle");
    EXPECT_EQ(plate.shape->fill, "accent");
    EXPECT_EQ(plate.shape->stroke, "");
    EXPECT_EQ(plate.shape->cornerRadius, 2);
    EXPECT_EQ(plate.frame, (Rect{{text.frame.minX() - 4, text.frame.minY() - 2}, {10 * 5 + 8, 12.5 + 4}}));
    // What is painted are capitals.
    graphics::DisplayList list;
    screen.window().paint(list);
    std::string painted;
    for (const auto& shaped : list.texts)
        for (const auto& run : shaped->runs) painted += run.text;
    EXPECT_EQ(painted, "BEST VALUE");
}

TEST(RadioPickerSelectionIndicator, IsABorderedDiscOrARingWithADot) {
    const auto circles = [](bool selected) {
        Screen screen(RadioPickerSelectionIndicator{selected}, Size{24, 24});
        return allOfType(screen.tree(), "Circle");
    };
    const auto empty = circles(false), marked = circles(true);

    EXPECT_EQ(empty[0].shape->fill, "velaBackground");
    EXPECT_EQ(empty[0].opacity, 1);
    EXPECT_EQ(empty[1].shape->stroke, "velaBorder");
    EXPECT_EQ(empty[1].shape->lineWidth, 2);
    EXPECT_EQ(empty[1].opacity, 1);
    EXPECT_EQ(empty[2].shape->lineWidth, 0);
    EXPECT_EQ(empty[3].opacity, 0);
    EXPECT_EQ(marked[0].opacity, 0);
    EXPECT_EQ(marked[1].shape->lineWidth, 0);
    EXPECT_EQ(marked[1].opacity, 0);
    EXPECT_EQ(marked[2].shape->lineWidth, 2);
    EXPECT_EQ(marked[3].opacity, 1);
}

TEST(RadioPicker, WritesToTheNewestPlaceOfItsSelection) {
    std::string before = "a", now = "a";
    std::string* place = &before;
    Screen screen(std::function<swiftui::View()>([&]() -> swiftui::View {
                      return RadioPicker{.items = plans({"a", "b"}),
                                         .selectedItem = Binding<std::string>([place] { return *place; },
                                                                              [place](const std::string& id) { *place = id; })};
                  }),
                  Size{343, 400});
    const auto plan = screen.find("plan.b");
    place = &now;
    static_cast<hosting::UIHostingController&>(*screen.window().rootViewController()).host().setNeedsUpdate();

    plan.activate();

    EXPECT_EQ(before, "a");
    EXPECT_EQ(now, "b");
}

TEST(FreeTrialCapsule, StandsInACapsuleAroundItsText) {
    Screen screen(FreeTrialCapsule{}, Size{343, 100});
    const auto text = firstOfType(screen.tree(), "Text"), capsule = firstOfType(screen.tree(), "Capsule");

    EXPECT_EQ(text.text->text, "7 Day Free Trial");
    EXPECT_EQ(text.text->font, "labelCapsSmall");
    EXPECT_EQ(text.text->color, "DecorativeColor.tealProminent");
    EXPECT_EQ(capsule.shape->fill, "DecorativeColor.tealBackground");
    EXPECT_EQ(capsule.frame, text.frame.insetBy(-6, -6));
}

} // namespace
} // namespace proupsells::tests

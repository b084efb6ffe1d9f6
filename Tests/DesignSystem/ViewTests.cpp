#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/LumoKit/Icon.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/VelaUIKit/ChargedButton.hpp"
#include "Platform/VelaUIKit/EmptyStateView.hpp"
#include "Platform/VelaUIKit/Navigation.hpp"
#include "Platform/VelaUIKit/Theme.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

using namespace proupsells;

namespace {

using namespace velauikit;

TEST(ChargedButton, TakesTouchesIn44Points) {
    ChargedButton button;
    button.setFrame({{100, 100}, {30, 30}});

    EXPECT_TRUE(button.pointInside({-7, -7}));
    EXPECT_TRUE(button.pointInside({36.9, 36.9}));
    EXPECT_FALSE(button.pointInside({-7.1, 15}));
    EXPECT_FALSE(button.pointInside({15, 37}));
}

TEST(ChargedButton, TakesTouchesInItsWholeFrameWhereItIsLarger) {
    ChargedButton button;
    button.setFrame({{0, 0}, {60, 20}});

    EXPECT_TRUE(button.pointInside({59, 10}));
    EXPECT_TRUE(button.pointInside({30, -12}));
    EXPECT_FALSE(button.pointInside({60, 10}));
}

TEST(EmptyStateView, CoversThePageWhileItWaits) {
    EmptyStateView view;
    EXPECT_FALSE(view.backgroundColor().has_value());

    view.configure({.kind = EmptyStateView::Kind(2)});
    EXPECT_EQ(view.configuration().kind, EmptyStateView::Kind::waiting);
    EXPECT_EQ(view.backgroundColor()->name, "velaBackground");
}

TEST(Theme, HasTheLightOneAtIndexOne) {
    EXPECT_EQ(static_cast<int>(theme({.userInterfaceStyle = graphics::ColorScheme::light})), 1);
    EXPECT_EQ(static_cast<int>(theme({.userInterfaceStyle = graphics::ColorScheme::dark})), 0);
}

TEST(EmbedInNavController, ShowsTheControllerInABar) {
    headless::TestBed bed;
    const auto controller = std::make_shared<uikit::UIViewController>();
    const auto navigation = embedInNavController(controller);

    EXPECT_EQ(navigation->topViewController(), controller.get());
    EXPECT_EQ(controller->navigationController(), navigation.get());
}

TEST(EmbedInNavController, PaintsItsButtonsInTheColourOfTexts) {
    headless::TestBed bed;
    const auto controller = std::make_shared<uikit::UIViewController>();
    controller->setRightBarButtonItem(barButtonItem(BarButtonStyle::close));
    const auto window = uikit::UIWindow::create({375, 800});
    window->setRootViewController(embedInNavController(controller));

    for (const auto scheme : {graphics::ColorScheme::light, graphics::ColorScheme::dark}) {
        window->setTraits({.userInterfaceStyle = scheme});
        bed.settle();
        graphics::DisplayList list;
        window->paint(list);
        int images = 0;
        for (const graphics::Command& command : list.commands) {
            if (command.kind != graphics::CommandKind::image) continue;
            ++images;
            EXPECT_EQ(command.color, velaLabel.resolved(scheme));
        }
        EXPECT_EQ(images, 1);
    }
}

TEST(BarButtonItem, HoldsItsTargetWeakly) {
    headless::TestBed bed;
    struct Target {
        int calls = 0;
        void close() { ++calls; }
    };
    auto target = std::make_shared<Target>();
    const uikit::UIBarButtonItem item = barButtonItem(BarButtonStyle::close, std::weak_ptr(target), &Target::close);

    item.action();
    EXPECT_EQ(target->calls, 1);
    EXPECT_EQ(item.accessibilityLabel, "Close");
    std::weak_ptr<Target> watched = target;
    target.reset();
    item.action();
    EXPECT_TRUE(watched.expired());
}

TEST(Images, HaveTheirNaturalSizes) {
    headless::TestBed bed;

    EXPECT_EQ(VelaUIKitImage::marwickFolioWithProBadge()->size, (geometry::Size{208, 26}));
    EXPECT_TRUE(VelaUIKitImage::marwickFolioWithProBadge()->darkFile.has_value());
    EXPECT_EQ(VelaUIKitImage::inAppMessageCloseIcon()->size, (geometry::Size{26, 26}));
    EXPECT_EQ(lumokit::Icon::diamond24()->size, (geometry::Size{24, 24}));
    EXPECT_EQ(lumokit::SystemSymbol::chevronRight()->name, "chevron.right");
}

} // namespace

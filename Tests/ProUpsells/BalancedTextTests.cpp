// Texts that do not end in a line of a single short word.
#include <algorithm>

#include <gmock/gmock.h>

#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/DisclaimerBlock.hpp"
#include "ProUpsells/LabelHeaderView.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"
#include "Tests/ProUpsells/DrawnScreen.hpp"
#include "Tests/ProUpsells/FreeLines.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/Paywall.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {
namespace {

class BalancedText : public ::testing::Test {
protected:
    ~BalancedText() override { window->setRootViewController(nullptr); }

    void show(const std::shared_ptr<uikit::UIViewController>& root) {
        window->setRootViewController(root);
        bed.settle();
    }
    // As they are painted, from top to bottom.
    std::vector<std::string> lines(std::string_view first) {
        graphics::DisplayList list;
        window->paint(list);
        std::vector<std::string> lines;
        for (const graphics::Command& command : list.commands) {
            if (command.kind != graphics::CommandKind::text) continue;
            const graphics::ShapedText& text = *list.texts[std::size_t(command.resource)];
            if (graphics::joinedText(text.runs).starts_with(first)) lines.push_back(paintedWords(text, command));
        }
        return lines;
    }

    headless::TestBed bed{servicesWithFreeLines()};
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
};

// So many words of three letters.
std::string words(int count) {
    std::string text = "one";
    for (int number = 1; number < count; ++number) text += " two";
    return text;
}

MATCHER(EndsInMoreThanAWord, "") { return !arg.empty() && (arg.size() == 1 || arg.back().find(' ') != std::string::npos); }

TEST_F(BalancedText, IsTheStorePagesHeadline) {
    for (int count = 2; count < 25; ++count) {
        const HostTranslations translations({{LabelHeaderView::headline, words(count)}});
        const auto root = std::make_shared<uikit::UIViewController>();
        root->view()->addSubview(std::make_shared<LabelHeaderView>(geometry::Rect{{0, 0}, {375, 220}}));
        show(root);

        EXPECT_THAT(lines("one"), EndsInMoreThanAWord()) << count;
    }
}

TEST_F(BalancedText, IsWhatAShelfSays) {
    const BrandAssetsShelf shelf;
    for (int count = 2; count < 15; ++count) {
        const HostTranslations translations(
            {{"Upload brand assets", words(count)},
             {"Add your logos, fonts and color palettes to use within your projects.", "First " + words(count)}});
        show(std::make_shared<VerticallyStackedContainerViewController>(
            std::make_shared<TitleSubtitleContainerViewController>(shelf), std::make_shared<uikit::UIViewController>()));

        EXPECT_THAT(lines("one"), EndsInMoreThanAWord()) << count;
        EXPECT_THAT(lines("First"), EndsInMoreThanAWord()) << count;
    }
}

TEST_F(BalancedText, IsThePaywallsSmallPrint) {
    for (int count = 2; count < 40; ++count) {
        show(hosting::UIHostingController::create([count]() -> swiftui::View { return DisclaimerBlock{.payment = words(count)}; }));

        EXPECT_THAT(lines("one"), EndsInMoreThanAWord()) << count;
    }
}

TEST_F(BalancedText, IsTheTitleOnAHeadersPicture) {
    for (int count = 2; count < 15; ++count) {
        const HostTranslations translations({{"Endless premium templates, updated daily.", words(count)}});
        PaywallModel paywall(twoPlans());
        show(hosting::UIHostingController::create(paywall.root()));

        EXPECT_THAT(lines("one"), EndsInMoreThanAWord()) << count;
        window->setRootViewController(nullptr);
    }
}

} // namespace
} // namespace proupsells::tests

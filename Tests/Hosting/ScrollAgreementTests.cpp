// Both scroll views move alike under the same finger.
#include "Platform/UIKit/Views/UIScrollView.hpp"
#include "Tests/Hosting/HostingScreen.hpp"

namespace proupsells::hosting {
namespace {

// In a window of 800 points.
constexpr double contentHeight = 30000;

struct Swipe {
    double distance = 0; // upwards
    double duration_s = 0;
};

class ScrollAgreement : public HostingTest {
protected:
    void showDeclarative() {
        show(swiftui::ScrollView{.content = {swiftui::ColorView{graphics::Color::black} | swiftui::frame(400, contentHeight)}});
        bed.settle();
    }
    void showRetained() {
        const auto root = std::make_shared<uikit::UIViewController>();
        const auto list = std::make_shared<uikit::UIScrollView>();
        list->setFrame({{0, 0}, {400, 800}});
        list->setContentSize({400, contentHeight});
        root->view()->addSubview(list);
        window->setRootViewController(root);
        bed.settle();
    }
    void swipe(const Swipe& swipe) {
        constexpr int steps = 12;
        const geometry::Point from{200, swipe.distance > 0 ? 780.0 : 20.0};
        touch(host::TouchPhase::began, from);
        for (int step = 1; step <= steps; ++step) {
            bed.runFor(swipe.duration_s / steps);
            touch(host::TouchPhase::moved, {from.x, from.y - swipe.distance * step / steps});
        }
        touch(host::TouchPhase::ended, {from.x, from.y - swipe.distance});
    }
    double offset() {
        const accessibility::SemanticNode root = window->semanticTree();
        auto found = accessibility::findAllByType(root, "ScrollView");
        if (found.empty()) found = accessibility::findAllByType(root, "UIScrollView");
        return found.at(0)->scroll->contentOffset.y;
    }
    // A fifth of a second apart, until the content is at rest.
    std::vector<double> offsetsAfter(const std::vector<Swipe>& swipes) {
        std::vector<double> offsets;
        for (const Swipe& one : swipes) {
            swipe(one);
            for (int i = 0; i < 40; ++i) {
                offsets.push_back(offset());
                bed.runFor(0.2);
            }
        }
        return offsets;
    }
    void expectAgreementAfter(const std::vector<Swipe>& swipes) {
        showDeclarative();
        const auto declarative = offsetsAfter(swipes);
        showRetained();
        const auto retained = offsetsAfter(swipes);

        EXPECT_THAT(retained, testing::Pointwise(testing::DoubleNear(1e-6), declarative));
    }
};

TEST_F(ScrollAgreement, FlicksGoTheSameWay) {
    expectAgreementAfter(
        {{.distance = 500, .duration_s = 0.1}, {.distance = -300, .duration_s = 0.2}, {.distance = 60, .duration_s = 0.5}});
}

TEST_F(ScrollAgreement, VeryFastFlicksGoTheSameWay) {
    expectAgreementAfter(
        {{.distance = 700, .duration_s = 0.05}, {.distance = 760, .duration_s = 0.012}, {.distance = -700, .duration_s = 0.03}});
}

TEST_F(ScrollAgreement, AFlickPastAnEndComesBackTheSameWay) { expectAgreementAfter({{.distance = -600, .duration_s = 0.03}}); }

} // namespace
} // namespace proupsells::hosting

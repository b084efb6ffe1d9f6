#include "Tests/UIKit/Screen.hpp"

#include <map>

#include "Platform/UIKit/Controllers/UINavigationController.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Size;
using testing::ElementsAre;

class PresentationRulesTest : public ScreenTest {
protected:
    PresentationRulesTest() : root(showRoot()), sheet(controller("sheet")) {
        sheet->setModalPresentationStyle(UIModalPresentationStyle::formSheet);
        sheet->setPreferredContentSize({375, 800});
    }

    std::shared_ptr<RecordingController> root, sheet;
};

class Observer : public PresentationObserver {
public:
    void willPresent(UIViewController& controller, UIViewController& content, UIModalPresentationStyle style, Size size) override {
        lines.push_back("present " + std::string(controller.typeName()) + " " + std::string(content.typeName()) + " " +
                        std::string(presentationStyleName(style)) + " " + std::to_string(int(size.width)) + "x" +
                        std::to_string(int(size.height)));
    }
    void willDismiss(UIViewController& controller, UIViewController& content) override {
        lines.push_back("dismiss " + std::string(controller.typeName()) + " " + std::string(content.typeName()));
    }
    Calls lines;
};

TEST_F(PresentationRulesTest, AnObserverHearsOfEveryPresentationAndDismissalWhenItIsAskedFor) {
    const auto observer = std::make_shared<Observer>();
    window->setPresentationObserver(observer);
    const auto navigation = UINavigationController::create(controller("content"));

    root->present(sheet, true);
    sheet->present(navigation, true); // waits for the first
    EXPECT_THAT(observer->lines,
                ElementsAre("present sheet sheet formSheet 375x800", "present UINavigationController content pageSheet 375x800"));
    bed.runFor(2 * transition_s);
    observer->lines.clear();

    navigation->topViewController()->dismiss(true);

    EXPECT_THAT(observer->lines, ElementsAre("dismiss UINavigationController content"));
}

// What is dismissed when the controller in the first column is told to: root presents a (with child ac), a presents b (with child
// bc).
TEST_F(PresentationRulesTest, DismissClosesWhatTheReceiverOrItsAncestorsPresentElseItself) {
    struct Case {
        const char* receiver;
        Calls left;
    };
    const std::vector<Case> cases = {
        {"root", {}}, {"a", {"a"}}, {"ac", {"a"}}, {"b", {"a"}}, {"bc", {"a"}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.receiver);
        const auto a = controller("a"), ac = controller("ac"), b = controller("b"), bc = controller("bc");
        a->addChild(ac);
        b->addChild(bc);
        root->present(a, false);
        ac->present(b, false);
        EXPECT_EQ(b->presentingViewController(), a.get());
        const std::map<std::string, UIViewController*> byName = {
            {"root", root.get()}, {"a", a.get()}, {"ac", ac.get()}, {"b", b.get()}, {"bc", bc.get()}};

        byName.at(one.receiver)->dismiss(false);

        Calls left;
        for (UIViewController* shown = root->presentedViewController(); shown; shown = shown->presentedViewController())
            left.push_back(std::string(shown->typeName()));
        EXPECT_EQ(left, one.left);
        root->dismiss(false);
    }
}

TEST_F(PresentationRulesTest, AnEmbeddedChildWithNothingPresentedClosesItsPresentedAncestor) {
    const auto child = controller("child");
    sheet->addChild(child);
    root->present(sheet, false);

    child->dismiss(false);

    EXPECT_EQ(window->frontMostViewController(), root.get());
}

TEST_F(PresentationRulesTest, DismissingWhereNothingIsPresentedDoesNothing) {
    bool isComplete = false;

    root->dismiss(true, [&] { isComplete = true; });

    EXPECT_FALSE(window->isTransitioning());
    EXPECT_FALSE(isComplete);
}

TEST_F(PresentationRulesTest, AWholeStackGoesWithItsBaseAndOnlyTheFrontMostMoves) {
    const auto top = controller("top");
    root->present(sheet, false);
    sheet->present(top, false);
    takeCalls();

    root->dismiss(true);

    EXPECT_THAT(takeCalls(), ElementsAre("top.willDisappear", "sheet.willDisappear"));
    bed.runFor(transition_s);
    EXPECT_THAT(takeCalls(), ElementsAre("top.didDisappear", "sheet.didDisappear"));
    EXPECT_EQ(window->subviews().size(), 1u);
}

// --- Host mistakes ---

TEST_F(PresentationRulesTest, PresentingWhilePresentingIsIgnoredWithOneLogLine) {
    const auto second = controller("second"), child = controller("child");
    root->addChild(child);
    root->present(sheet, true);

    child->present(second, true);

    const auto records = bed.takeLogRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].severity, 4);
    EXPECT_EQ(records[0].message, "UIViewController - presenting second is ignored: root is presenting sheet");
    bed.runFor(transition_s);
    EXPECT_EQ(window->frontMostViewController(), sheet.get());
    EXPECT_FALSE(second->isViewLoaded());
}

TEST_F(PresentationRulesTest, PresentingFromOutsideAWindowIsIgnoredWithOneLogLine) {
    controller("away")->present(sheet, true);

    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
    EXPECT_FALSE(sheet->isBeingPresented());
}

TEST_F(PresentationRulesTest, PresentingWhatIsShownAlreadyIsIgnoredWithOneLogLine) {
    root->present(sheet, false);

    sheet->present(sheet, false);

    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
    EXPECT_EQ(sheet->presentedViewController(), nullptr);
}

} // namespace
} // namespace proupsells::uikit

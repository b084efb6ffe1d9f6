// How views and controllers hear that the language has changed.
#include "Platform/Foundation/Locale.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using foundation::Locale;
using testing::ElementsAre;
using testing::IsEmpty;

class LanguageView : public UIView {
public:
    explicit LanguageView(Calls& calls) : m_calls(calls) {}
    void languageDidChange() override {
        m_calls.push_back("view " + Locale::current().identifier());
        if (const auto then = std::exchange(onChange, nullptr)) then();
    }
    std::function<void()> onChange;

private:
    Calls& m_calls;
};

class LanguageController : public UIViewController {
public:
    explicit LanguageController(Calls& calls) : m_calls(calls) {}
    void loadView() override { setView(std::make_shared<LanguageView>(m_calls)); }
    void languageDidChange() override { m_calls.push_back("controller " + Locale::current().identifier()); }

private:
    Calls& m_calls;
};

class LanguageTest : public ScreenTest {
protected:
    std::shared_ptr<LanguageView> showView() {
        const auto root = showRoot();
        auto view = std::make_shared<LanguageView>(calls);
        root->view()->addSubview(view);
        bed.settle();
        return view;
    }
};

TEST_F(LanguageTest, ReachesViewsAndTheirControllersInTheNextUpdate) {
    window->setRootViewController(std::make_shared<LanguageController>(calls));
    bed.settle();

    Locale::setCurrent(Locale("de"));
    EXPECT_THAT(calls, IsEmpty());
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de", "controller de"));
}

TEST_F(LanguageTest, IsToldOnceForAllChangesOfATurn) {
    const auto view = showView();

    Locale::setCurrent(Locale("de"));
    Locale::setCurrent(Locale("fr"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view fr"));
}

TEST_F(LanguageTest, IsNotToldWhereNothingHasChanged) {
    const auto view = showView();

    Locale::setCurrent(Locale(Locale::current()));
    EXPECT_FALSE(bed.loop().nextDueTime_s());
    window->semanticTree();

    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(LanguageTest, IsFollowedByADumpAndAPictureAtOnce) {
    const auto view = showView();

    Locale::setCurrent(Locale("de"));
    window->semanticTree();
    EXPECT_THAT(takeCalls(), ElementsAre("view de"));

    Locale::setCurrent(Locale("fr"));
    painted();
    EXPECT_THAT(calls, ElementsAre("view fr"));
}

TEST_F(LanguageTest, IsToldToAViewThatWasAwayWhenItComesBack) {
    const auto view = showView();
    const auto root = window->rootViewController()->view();
    view->removeFromSuperview();

    Locale::setCurrent(Locale("de"));
    bed.settle();
    EXPECT_THAT(calls, IsEmpty());
    root->addSubview(view);

    EXPECT_THAT(calls, ElementsAre("view de"));
}

TEST_F(LanguageTest, IsToldToAViewThatWasMadeBeforeTheChangeAndShownAfterIt) {
    const auto view = std::make_shared<LanguageView>(calls);
    Locale::setCurrent(Locale("de"));

    showRoot()->view()->addSubview(view);
    EXPECT_THAT(takeCalls(), ElementsAre("view de"));

    showRoot()->view()->addSubview(std::make_shared<LanguageView>(calls));
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(LanguageTest, ReachesWhatIsOnItsWayIn) {
    const auto root = showRoot();
    root->present(std::make_shared<LanguageController>(calls), true);
    bed.runFor(transition_s / 2);

    Locale::setCurrent(Locale("de"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de", "controller de"));
    EXPECT_TRUE(window->isTransitioning());
}

TEST_F(LanguageTest, ReachesWhatIsCovered) {
    showView();
    window->rootViewController()->present(std::make_shared<UIViewController>(), false);

    Locale::setCurrent(Locale("de"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de"));
}

TEST_F(LanguageTest, IsToldAgainWhenItChangesWhileItIsTold) {
    const auto view = showView();
    view->onChange = [] { Locale::setCurrent(Locale("fr")); };

    Locale::setCurrent(Locale("de"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de", "view fr"));
}

TEST_F(LanguageTest, MayTakeTheViewAway) {
    const auto view = showView();
    view->onChange = [&] { view->removeFromSuperview(); };

    Locale::setCurrent(Locale("de"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de"));
    EXPECT_FALSE(view->superview());
}

TEST_F(LanguageTest, IsNoMatterToAWindowThatHasGone) {
    const auto view = showView();
    UIWindow::create({375, 800}).reset();

    Locale::setCurrent(Locale("de"));
    bed.settle();

    EXPECT_THAT(calls, ElementsAre("view de"));
}

TEST_F(LanguageTest, HasALabelShapedAgain) {
    const auto label = std::make_shared<UILabel>();
    label->setText("words");
    label->setFrame({{0, 0}, {200, 40}});
    showRoot()->view()->addSubview(label);
    painted();
    const std::size_t before = bed.fixedTextShaper()->shapeCount();
    painted();
    ASSERT_EQ(bed.fixedTextShaper()->shapeCount(), before);

    Locale::setCurrent(Locale("de"));
    painted();

    EXPECT_GT(bed.fixedTextShaper()->shapeCount(), before);
}

} // namespace
} // namespace proupsells::uikit

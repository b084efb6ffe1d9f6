// What a change asks for: another picture, another layout, or nothing.
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

// Counts how often something inside it asks for a picture.
class PictureCounter : public UIView {
public:
    int count = 0;

protected:
    void subtreeNeedsDisplay() override { ++count; }
};

template <class View>
struct Change {
    const char* name;
    std::function<void(View&)> make;
    bool asksForLayoutAround = false;
};

UIImage imageOf(geometry::Size size) {
    auto image = std::make_shared<graphics::Image>();
    image->name = "tile";
    image->size = size;
    return image;
}

const UIImage& sameImage() {
    static const UIImage image = imageOf({3, 4});
    return image;
}

template <class View>
class ViewInAPicture {
public:
    ViewInAPicture() {
        picture->setFrame({{0, 0}, {100, 100}});
        view->setFrame({{0, 0}, {50, 20}});
        picture->addSubview(view);
        settle();
    }
    void settle() {
        picture->layoutIfNeeded();
        picture->count = 0;
    }

    std::shared_ptr<PictureCounter> picture = std::make_shared<PictureCounter>();
    std::shared_ptr<View> view = std::make_shared<View>();
};

template <class View>
void expectEachAsksForAPicture(const std::vector<Change<View>>& changes) {
    for (const Change<View>& change : changes) {
        SCOPED_TRACE(change.name);
        ViewInAPicture<View> scene;

        change.make(*scene.view);

        EXPECT_GT(scene.picture->count, 0);
        EXPECT_EQ(scene.picture->needsLayout(), change.asksForLayoutAround);
    }
}

// Whatever is set a second time.
template <class View>
void expectTheSameAgainAsksForNothing(const std::vector<Change<View>>& changes) {
    for (const Change<View>& change : changes) {
        SCOPED_TRACE(change.name);
        ViewInAPicture<View> scene;
        change.make(*scene.view);
        scene.settle();

        change.make(*scene.view);

        EXPECT_EQ(scene.picture->count, 0);
        EXPECT_FALSE(scene.picture->needsLayout());
        EXPECT_FALSE(scene.view->needsLayout());
    }
}

class ViewChange : public testing::Test {
protected:
    headless::TestBed bed;
};

const std::vector<Change<UIView>>& changesOnlyOnce() {
    static const std::vector<Change<UIView>> changes = {
        {"background", [](UIView& view) { view.setBackgroundColor(UIColor::black); }},
        {"hidden", [](UIView& view) { view.setHidden(true); }},
        {"place",
         [](UIView& view) {
             view.setFrame({{1, 0}, {50, 20}});
         }},
        {"size",
         [](UIView& view) {
             view.setFrame({{0, 0}, {51, 20}});
         }},
        {"origin of the bounds",
         [](UIView& view) {
             view.setBoundsOrigin({0, 1});
         }},
        {"transform", [](UIView& view) { view.setTransform(geometry::Transform::scaling(2, 2)); }},
    };
    return changes;
}

TEST_F(ViewChange, AsksForAPictureWhereItCanBeSeen) {
    expectEachAsksForAPicture<UIView>(changesOnlyOnce());
    expectEachAsksForAPicture<UIView>({
        {"opacity", [](UIView& view) { view.setAlpha(0.5); }},
        {"clip", [](UIView& view) { view.setClipsToBounds(true); }},
        {"corners", [](UIView& view) { view.setCornerRadius(4); }},
        {"tint", [](UIView& view) { view.setTintColor(UIColor::black); }},
        {"a subview that comes", [](UIView& view) { view.addSubview(viewAt({})); }},
        {"leaving", [](UIView& view) { view.removeFromSuperview(); }, true},
    });
}

TEST_F(ViewChange, AsksForNothingWhereItIsNone) { expectTheSameAgainAsksForNothing<UIView>(changesOnlyOnce()); }

TEST_F(ViewChange, OfALabelIsSeen) {
    expectEachAsksForAPicture<UILabel>({
        {"text", [](UILabel& label) { label.setText("a"); }, true},
        {"attributed text", [](UILabel& label) { label.setAttributedText(graphics::AttributedString("a", {})); }, true},
        {"font", [](UILabel& label) { label.setFont({.face = nullptr, .size = 20}); }, true},
        {"colour", [](UILabel& label) { label.setTextColor(UIColor::white); }, true},
        {"alignment", [](UILabel& label) { label.setTextAlignment(graphics::TextAlignment::center); }},
        {"least scale", [](UILabel& label) { label.setMinimumScaleFactor(0.5); }},
        {"text size", [](UILabel& label) { label.setLargestTextSize(graphics::ContentSizeCategory::extraLarge); }, true},
        {"last line", [](UILabel& label) { label.setAvoidsShortLastLine(true); }, true},
    });
}

TEST_F(ViewChange, OfALabelsMeasuresAsksForALayoutAroundIt) {
    ViewInAPicture<UILabel> scene;

    scene.view->setNumberOfLines(2);
    EXPECT_TRUE(scene.picture->needsLayout());
    scene.settle();
    scene.view->setPreferredMaxLayoutWidth(30);
    EXPECT_TRUE(scene.picture->needsLayout());
    scene.settle();
    scene.view->setPreferredMaxLayoutWidth(30);

    EXPECT_FALSE(scene.picture->needsLayout());
}

TEST_F(ViewChange, OfAnImageIsSeenAndMeasured) {
    const std::vector<Change<UIImageView>> image = {{"image", [](UIImageView& view) { view.setImage(sameImage()); }, true}};
    expectEachAsksForAPicture<UIImageView>(image);
    expectEachAsksForAPicture<UIImageView>({
        {"mode", [](UIImageView& view) { view.setContentMode(UIImageView::ContentMode::center); }},
    });
    expectTheSameAgainAsksForNothing<UIImageView>(image);
}

TEST_F(ViewChange, OfAButtonIsSeen) {
    const std::vector<Change<UIButton>> changes = {
        {"image", [](UIButton& button) { button.setImage(sameImage()); }, true},
        {"disabled", [](UIButton& button) { button.setEnabled(false); }},
        {"hovered",
         [](UIButton& button) {
             button.hover(geometry::Point{1, 1});
         }},
    };
    expectEachAsksForAPicture<UIButton>(changes);
    expectTheSameAgainAsksForNothing<UIButton>(changes);
    struct PressedButton : UIButton {
        using UIButton::setHighlighted;
    };
    const std::vector<Change<PressedButton>> press = {{"pressed", [](PressedButton& button) { button.setHighlighted(true); }}};
    expectEachAsksForAPicture<PressedButton>(press);
    expectTheSameAgainAsksForNothing<PressedButton>(press);
}

TEST_F(ViewChange, OfPagesIsSeen) {
    const std::vector<Change<UIPageControl>> changes = {
        {"number of pages", [](UIPageControl& pages) { pages.setNumberOfPages(3); }, true},
    };
    expectEachAsksForAPicture<UIPageControl>(changes);
    expectTheSameAgainAsksForNothing<UIPageControl>(changes);
    ViewInAPicture<UIPageControl> scene;
    scene.view->setNumberOfPages(3);
    scene.settle();

    scene.view->setCurrentPage(2);
    EXPECT_GT(scene.picture->count, 0);
    scene.settle();
    scene.view->setCurrentPage(2);

    EXPECT_EQ(scene.picture->count, 0);
    EXPECT_FALSE(scene.picture->needsLayout());
}

TEST_F(ViewChange, OfScrolledContentIsSeen) {
    const std::vector<Change<UIScrollView>> changes = {
        {"content size",
         [](UIScrollView& list) {
             list.setContentSize({50, 400});
         }},
        {"offset",
         [](UIScrollView& list) {
             list.setContentOffset({0, 10});
         }},
    };
    expectEachAsksForAPicture<UIScrollView>(changes);
    expectTheSameAgainAsksForNothing<UIScrollView>(changes);
    expectEachAsksForAPicture<UIScrollView>({
        {"vertical indicator", [](UIScrollView& list) { list.setShowsVerticalScrollIndicator(false); }},
        {"horizontal indicator", [](UIScrollView& list) { list.setShowsHorizontalScrollIndicator(false); }},
    });
}

// --- Layout ---

TEST_F(ViewChange, OfTheSizeAsksForALayoutInsideAndOfThePlaceForNone) {
    ViewInAPicture<UIView> scene;

    scene.view->setFrame({{5, 5}, {50, 20}});
    EXPECT_FALSE(scene.view->needsLayout());
    scene.view->setFrame({{5, 5}, {50, 21}});

    EXPECT_TRUE(scene.view->needsLayout());
    EXPECT_FALSE(scene.picture->needsLayout());
}

TEST_F(ViewChange, OfWhatDecidesAboutTheFrameAsksForALayoutAround) {
    const std::vector<Change<UIView>> changes = {
        {"insets", [](UIView& view) { view.fillSuperview({.top = 1}); }},
        {"hugging", [](UIView& view) { view.setContentHuggingPriority(1, Axis::vertical); }},
        {"resistance", [](UIView& view) { view.setContentCompressionResistancePriority(1, Axis::vertical); }},
        {"natural size", [](UIView& view) { view.invalidateIntrinsicContentSize(); }},
        {"leaving", [](UIView& view) { view.removeFromSuperview(); }},
    };
    for (const Change<UIView>& change : changes) {
        SCOPED_TRACE(change.name);
        ViewInAPicture<UIView> scene;
        ASSERT_FALSE(scene.picture->needsLayout());

        change.make(*scene.view);

        EXPECT_TRUE(scene.picture->needsLayout());
    }
    ViewInAPicture<UIView> scene;
    scene.picture->addSubview(viewAt({}));
    EXPECT_TRUE(scene.picture->needsLayout());
}

TEST_F(ViewChange, OfAPriorityHoldsAlongItsAxis) {
    UIView view;
    EXPECT_EQ(view.contentHuggingPriority(Axis::horizontal), 250);
    EXPECT_EQ(view.contentCompressionResistancePriority(Axis::vertical), 750);

    view.setContentHuggingPriority(1, Axis::vertical);
    view.setContentCompressionResistancePriority(2, Axis::horizontal);

    EXPECT_EQ(view.contentHuggingPriority(Axis::horizontal), 250);
    EXPECT_EQ(view.contentHuggingPriority(Axis::vertical), 1);
    EXPECT_EQ(view.contentCompressionResistancePriority(Axis::horizontal), 2);
    EXPECT_EQ(view.contentCompressionResistancePriority(Axis::vertical), 750);
    for (const Axis axis : {Axis::horizontal, Axis::vertical}) {
        EXPECT_EQ(UILabel().contentHuggingPriority(axis), 251);
        EXPECT_EQ(UIImageView().contentHuggingPriority(axis), 251);
    }
}

TEST_F(ViewChange, OfAStackLaysItOutAnew) {
    const std::vector<Change<UIStackView>> changes = {
        {"axis", [](UIStackView& stack) { stack.setAxis(Axis::vertical); }, true},
        {"spacing", [](UIStackView& stack) { stack.setSpacing(2); }, true},
        {"distribution", [](UIStackView& stack) { stack.setDistribution(UIStackView::Distribution::fillEqually); }, true},
        {"alignment", [](UIStackView& stack) { stack.setAlignment(UIStackView::Alignment::center); }, false},
        {"a view that comes", [](UIStackView& stack) { stack.addArrangedSubview(viewAt({})); }, true},
        {"a view that hides", [](UIStackView& stack) { stack.arrangedSubviews()[0]->setHidden(true); }, true},
        {"a view that leaves", [](UIStackView& stack) { stack.arrangedSubviews()[0]->removeFromSuperview(); }, true},
    };
    for (const Change<UIStackView>& change : changes) {
        SCOPED_TRACE(change.name);
        ViewInAPicture<UIStackView> scene;
        scene.view->addArrangedSubview(viewAt({}));
        scene.settle();

        change.make(*scene.view);

        EXPECT_TRUE(scene.view->needsLayout());
        EXPECT_EQ(scene.picture->needsLayout(), change.asksForLayoutAround);
    }
}

TEST_F(ViewChange, TellsAViewOfItsNewSuperviewOnceItStandsThere) {
    class Told : public UIView {
    public:
        void didMoveToSuperview() override { superviews.push_back(superview()); }
        std::vector<const UIView*> superviews;
    };
    UIView first, second;
    const auto view = std::make_shared<Told>();

    first.addSubview(view);
    second.addSubview(view);
    view->removeFromSuperview();
    view->removeFromSuperview();

    EXPECT_THAT(view->superviews, testing::ElementsAre(&first, nullptr, &second, nullptr));
}

} // namespace
} // namespace proupsells::uikit

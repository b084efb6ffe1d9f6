// Constraints that cannot hold, values that are no numbers, and changes in the middle of a layout.
#include <cmath>

#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// --- What cannot hold ---

TEST_F(ConstraintTest, ARequiredConstraintThatCannotHoldIsLeftOutAndNamedOnce) {
    const auto label = sized({80, 40}), image = sized({20, 20});
    label->accessibilityIdentifier = "label";
    image->accessibilityIdentifier = "image";
    NSLayoutConstraint::activate({label->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 10),
                                  image->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                  image->widthAnchor().constraintEqualToConstant(20),
                                  label->leadingAnchor().constraintEqualTo(image->trailingAnchor(), -16),
                                  image->widthAnchor().constraintEqualToMultiplier(image->heightAnchor(), 2),
                                  image->heightAnchor().constraintEqualToConstant(7)->withIdentifier("image height")});

    EXPECT_EQ(frameOf(label).minX(), 10);
    EXPECT_EQ(frameOf(image).size, (Size{20, 10}));
    EXPECT_THAT(takeLog(),
                ElementsAre("Left out a constraint that cannot hold beside the others: label.leading = image.trailing - 16",
                            "Left out a constraint that cannot hold beside the others: image height"));

    root->setFrame({{0, 0}, {300, 100}});
    root->layoutIfNeeded();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_F(ConstraintTest, AnImpossibleSizeOfAFixedViewIsNamedToo) {
    const auto view = plain();
    root->addSubview(viewAt({{0, 0}, {10, 10}}));
    const auto fixed = root->subviews().back();
    NSLayoutConstraint::activate({view->topAnchor().constraintEqualTo(root->topAnchor()),
                                  fixed->widthAnchor().constraintGreaterThanOrEqualTo(root->widthAnchor(), 1)});

    root->layoutIfNeeded();

    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("UIView.width >= UIView.width + 1")));
}

TEST_F(ConstraintTest, WhatIsNotANumberNeverReachesAFrame) {
    const auto view = sized({80, 40}), strange = sized({std::nan(""), geometry::infinity});
    NSLayoutConstraint::activate({view->topAnchor().constraintEqualTo(root->topAnchor(), std::nan("")),
                                  view->widthAnchor().constraintEqualToMultiplier(view->heightAnchor(), geometry::infinity),
                                  strange->leftAnchor().constraintEqualTo(view->rightAnchor(), 3)});

    EXPECT_EQ(frameOf(view), (Rect{{0, 0}, {80, 40}}));
    EXPECT_EQ(frameOf(strange), (Rect{{83, 0}, {0, 0}}));
    EXPECT_EQ(takeLog().size(), 2u);
}

TEST_F(ConstraintTest, NoLengthIsNegative) {
    const auto view = plain();
    NSLayoutConstraint::activate({view->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 300),
                                  view->trailingAnchor().constraintEqualTo(root->trailingAnchor(), -100),
                                  view->topAnchor().constraintEqualTo(root->topAnchor())});

    EXPECT_EQ(frameOf(view), (Rect{{300, 0}, {0, 0}}));
}

// --- Changes on the way ---

TEST_F(ConstraintTest, WhatIsToldOfItsNewFrameMayChangeTheLayoutOnceMore) {
    class Adapting : public UIView {
    public:
        std::function<void()> onFrame;

    protected:
        void frameDidChange(const Rect&) override {
            if (onFrame) onFrame();
        }
    };
    const auto view = added(std::make_shared<Adapting>(), *root);
    const auto width = view->widthAnchor().constraintEqualToConstant(300);
    NSLayoutConstraint::activate(
        {width, view->leftAnchor().constraintEqualTo(root->leftAnchor()), view->topAnchor().constraintEqualTo(root->topAnchor())});
    view->onFrame = [&] {
        width->setConstant(100);
        root->layoutIfNeeded();
    };

    EXPECT_EQ(frameOf(view).width(), 100);
    EXPECT_FALSE(root->needsLayout());
}

} // namespace
} // namespace proupsells::uikit

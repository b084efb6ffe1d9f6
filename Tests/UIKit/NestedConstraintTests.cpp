// Views placed by constraints inside views placed by constraints: after a change, everything stands as if it had always been so.
#include <functional>

#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {

using geometry::Rect;
using geometry::Size;

namespace {

// A box in the root's middle, 10 around a panel, which is 5 around content of a natural size; a tail stands 8 behind the content,
// whoever's it is.
class NestedConstraints : public ConstraintTest {
public:
    NestedConstraints() {
        box = plain();
        panel = added(std::make_shared<UIView>(), *box);
        content = added(std::make_shared<SizedView>(Size{40, 20}), *panel);
        tail = sized({10, 10});
        surround(*box, *panel, 10);
        inset = surround(*panel, *content, 5);
        boxTop = box->topAnchor().constraintEqualTo(root->topAnchor(), 30);
        NSLayoutConstraint::activate({box->centerXAnchor().constraintEqualTo(root->centerXAnchor()), boxTop,
                                      tail->leftAnchor().constraintEqualTo(content->rightAnchor(), 8),
                                      tail->topAnchor().constraintEqualTo(content->topAnchor())});
    }

    // Returns the constraint of the left edges.
    static std::shared_ptr<NSLayoutConstraint> surround(UIView& outer, UIView& inner, double distance) {
        const auto left = inner.leftAnchor().constraintEqualTo(outer.leftAnchor(), distance);
        NSLayoutConstraint::activate({left, inner.rightAnchor().constraintEqualTo(outer.rightAnchor(), -distance),
                                      inner.topAnchor().constraintEqualTo(outer.topAnchor(), distance),
                                      inner.bottomAnchor().constraintEqualTo(outer.bottomAnchor(), -distance)});
        return left;
    }
    void resize(Size size) {
        root->setFrame({{0, 0}, size});
        root->layoutIfNeeded();
    }
    // In the root.
    Rect placeOf(const UIView& view) { return view.convertTo(view.bounds(), root.get()); }
    void expectPlaces(const Rect& boxPlace, const Rect& contentPlace) {
        EXPECT_EQ(placeOf(*box), boxPlace);
        EXPECT_EQ(placeOf(*content), contentPlace);
        EXPECT_EQ(placeOf(*tail), (Rect{{contentPlace.maxX() + 8, contentPlace.minY()}, {10, 10}}));
    }

    std::shared_ptr<UIView> box, panel;
    std::shared_ptr<SizedView> content, tail;
    std::shared_ptr<NSLayoutConstraint> boxTop, inset;
};

} // namespace

TEST_F(NestedConstraints, FollowTheSizeOfTheirInnermostContent) {
    root->layoutIfNeeded();
    expectPlaces({{152.5, 30}, {70, 50}}, {{167.5, 45}, {40, 20}});

    content->setNaturalSize({100, 44});
    root->layoutIfNeeded();

    expectPlaces({{122.5, 30}, {130, 74}}, {{137.5, 45}, {100, 44}});
    EXPECT_EQ(panel->frame(), (Rect{{10, 10}, {110, 54}}));
}

TEST_F(NestedConstraints, FollowAConstantInside) {
    root->layoutIfNeeded();

    inset->setConstant(25);
    root->layoutIfNeeded();

    expectPlaces({{142.5, 30}, {90, 50}}, {{177.5, 45}, {40, 20}});
}

TEST_F(NestedConstraints, FollowAConstantOutside) {
    root->layoutIfNeeded();

    boxTop->setConstant(80);
    root->layoutIfNeeded();

    expectPlaces({{152.5, 80}, {70, 50}}, {{167.5, 95}, {40, 20}});
}

TEST_F(NestedConstraints, FollowFromAnInnerViewOnThatIsAskedAlone) {
    root->layoutIfNeeded();

    content->setNaturalSize({60, 20});
    panel->layoutIfNeeded();

    expectPlaces({{142.5, 30}, {90, 50}}, {{157.5, 45}, {60, 20}});
}

TEST_F(NestedConstraints, FollowWhatIsAddedAndTakenAwayInside) {
    root->layoutIfNeeded();
    const auto wide = content->widthAnchor().constraintEqualToConstant(90);

    wide->setActive(true);
    root->layoutIfNeeded();
    expectPlaces({{127.5, 30}, {120, 50}}, {{142.5, 45}, {90, 20}});

    wide->setActive(false);
    root->layoutIfNeeded();
    expectPlaces({{152.5, 30}, {70, 50}}, {{167.5, 45}, {40, 20}});
}

// A view that is placed by its frame solves what is inside on its own, wherever it stands.
TEST_F(NestedConstraints, FollowInsideAViewThatIsPlacedByItsFrame) {
    const auto fixed = viewAt({{4, 6}, {200, 100}});
    panel->addSubview(fixed);
    const auto inner = added(std::make_shared<SizedView>(Size{30, 10}), *fixed);
    NSLayoutConstraint::activate({inner->centerXAnchor().constraintEqualTo(fixed->centerXAnchor()),
                                  inner->bottomAnchor().constraintEqualTo(fixed->bottomAnchor())});
    root->layoutIfNeeded();
    EXPECT_EQ(inner->frame(), (Rect{{85, 90}, {30, 10}}));
    const Rect before = placeOf(*box);

    inner->setNaturalSize({50, 40});
    root->layoutIfNeeded();
    EXPECT_EQ(inner->frame(), (Rect{{75, 60}, {50, 40}}));
    EXPECT_EQ(placeOf(*box), before);

    fixed->setFrame({{0, 0}, {100, 50}});
    root->layoutIfNeeded();
    EXPECT_EQ(inner->frame(), (Rect{{25, 10}, {50, 40}}));
}

// A stack asks what it arranges for its size, which constraints inside decide.
TEST_F(NestedConstraints, FollowInsideAStackThatConstraintsPlace) {
    const auto stack = added(std::make_shared<UIStackView>(Axis::horizontal), *root);
    const auto first = std::make_shared<SizedView>(Size{30, 12}), second = std::make_shared<SizedView>(Size{20, 12});
    stack->addArrangedSubview(first);
    stack->addArrangedSubview(second);
    NSLayoutConstraint::activate({stack->rightAnchor().constraintEqualTo(root->rightAnchor()),
                                  stack->bottomAnchor().constraintEqualTo(root->bottomAnchor())});
    root->layoutIfNeeded();
    EXPECT_EQ(stack->frame(), (Rect{{325, 188}, {50, 12}}));

    first->setNaturalSize({80, 16});
    root->layoutIfNeeded();

    EXPECT_EQ(stack->frame(), (Rect{{275, 184}, {100, 16}}));
    EXPECT_EQ(first->frame().width(), 80);
    EXPECT_EQ(second->frame().minX(), 80);
}

// Each change by itself, and all of them one after the other, against scenes that were built that way.
TEST_F(NestedConstraints, StandAfterAnyChangesAsIfTheyHadAlwaysStoodSo) {
    struct State {
        Size content{40, 20};
        double inset = 5, top = 30;
        Size root{375, 200};
    };
    const State states[] = {{.content = {100, 44}},
                            {.inset = 17},
                            {.top = 2},
                            {.root = {200, 300}},
                            {.content = {1, 1}, .inset = 0, .top = 90, .root = {500, 80}},
                            {}};
    const auto apply = [](NestedConstraints& scene, const State& state) {
        scene.content->setNaturalSize(state.content);
        scene.inset->setConstant(state.inset);
        scene.boxTop->setConstant(state.top);
        scene.resize(state.root);
    };
    class Scene : public NestedConstraints {
        void TestBody() override {}
    };
    for (const State& state : states) {
        apply(*this, state);

        Scene fresh;
        apply(fresh, state);
        for (auto view : {&NestedConstraints::box, &NestedConstraints::panel})
            EXPECT_EQ((this->*view)->frame(), (fresh.*view)->frame());
        for (auto view : {&NestedConstraints::content, &NestedConstraints::tail})
            EXPECT_EQ((this->*view)->frame(), (fresh.*view)->frame());
    }
}

} // namespace proupsells::uikit

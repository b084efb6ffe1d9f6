#include "Tests/UIKit/Screen.hpp"

#include <random>

namespace proupsells::uikit {
namespace {

// Checks the order of one controller's calls.
class OrderedController : public UIViewController {
public:
    std::string_view typeName() const override { return "OrderedController"; }
    void viewWillAppear(bool) override { step(State::gone, State::coming); }
    void viewDidAppear(bool) override { step(State::coming, State::here); }
    void viewWillDisappear(bool) override { step(State::here, State::going); }
    void viewDidDisappear(bool) override { step(State::going, State::gone); }
    bool isHere() const { return m_state == State::here; }
    bool isGone() const { return m_state == State::gone; }

private:
    enum class State { gone, coming, here, going };
    void step(State from, State to) {
        EXPECT_EQ(int(m_state), int(from));
        m_state = to;
    }
    State m_state = State::gone;
};

class RandomPresentation : public ScreenTest, public testing::WithParamInterface<unsigned> {
protected:
    RandomPresentation() : random(GetParam()) {
        root = std::make_shared<OrderedController>();
        window->setRootViewController(root);
        for (int i = 0; i < 5; ++i) pool.push_back(std::make_shared<OrderedController>());
    }
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    UIViewController& any() { return below(4) == 0 ? *root : *pool[std::size_t(below(int(pool.size())))]; }

    void doSomething() {
        const bool animated = below(2) == 0;
        const auto& presented = pool[std::size_t(below(int(pool.size())))];
        switch (below(4)) {
        case 0:
        case 1:
            presented->setModalPresentationStyle(below(3) == 0 ? UIModalPresentationStyle::fullScreen
                                                               : UIModalPresentationStyle::pageSheet);
            any().present(presented, animated, [this] {
                if (below(4) == 0) any().dismiss(below(2) == 0);
            });
            break;
        case 2: any().dismiss(animated); break;
        case 3: bed.runFor(below(10) * 0.08); break;
        }
    }

    std::mt19937 random;
    std::shared_ptr<OrderedController> root;
    std::vector<std::shared_ptr<OrderedController>> pool;
};

TEST_P(RandomPresentation, WhateverIsAskedForTheStackStaysConsistent) {
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 8; ++i) doSomething();
        bed.runFor(20);
        bed.takeLogRecords(); // what could not be done

        EXPECT_FALSE(window->isTransitioning());
        std::vector<UIViewController*> shown;
        for (UIViewController* one = root->presentedViewController(); one; one = one->presentedViewController())
            shown.push_back(one);
        EXPECT_EQ(window->subviews().size(), 1 + shown.size());
        EXPECT_EQ(window->frontMostViewController(), shown.empty() ? root.get() : shown.back());
        for (const auto& one : pool) {
            const bool isShown = std::find(shown.begin(), shown.end(), one.get()) != shown.end();
            EXPECT_EQ(one->presentingViewController() != nullptr, isShown);
            EXPECT_TRUE(isShown || one->isGone());
            EXPECT_FALSE(one->isBeingPresented() || one->isBeingDismissed());
        }
        const bool isFrontMostHere = shown.empty() ? root->isHere() : static_cast<OrderedController*>(shown.back())->isHere();
        EXPECT_TRUE(isFrontMostHere);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPresentation, testing::Range(0u, 60u));

} // namespace
} // namespace proupsells::uikit

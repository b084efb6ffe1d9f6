// A host's exception passes through presentations and updates, and the window goes on.
#include "Tests/UIKit/Screen.hpp"

#include <stdexcept>

namespace proupsells::uikit {
namespace {

using testing::ElementsAre;
using testing::Values;

// One of a controller's calls, which throws.
struct ThrowingCall {
    const char* name;
    std::function<void()> RecordingController::*call;
};

class ThrowingHost : public ScreenTest, public testing::WithParamInterface<std::tuple<ThrowingCall, bool>> {
protected:
    ThrowingHost() : root(showRoot()), sheet(controller("sheet")), isAnimated(std::get<1>(GetParam())) {
        (*sheet).*std::get<0>(GetParam()).call = [this] {
            ++thrownCount;
            throw std::runtime_error("the host's");
        };
    }
    ~ThrowingHost() override { (*sheet).*std::get<0>(GetParam()).call = nullptr; }
    void swallow(const std::function<void()>& action) {
        try {
            action();
            bed.runFor(1);
        } catch (const std::runtime_error&) {
            bed.runFor(1);
        }
    }
    // Presents and dismisses another controller, with all of its calls.
    void expectUsable() {
        takeCalls();
        const auto next = controller("next");
        root->present(next, true, [&] { calls.push_back("complete"); });
        bed.runFor(1);
        EXPECT_EQ(window->frontMostViewController(), next.get());
        next->dismiss(true);
        bed.runFor(1);

        EXPECT_THAT(takeCalls(), ElementsAre("next.didLoad", "next.willAppear", "next.didAppear", "complete", "next.willDisappear",
                                             "next.didDisappear"));
        EXPECT_EQ(window->frontMostViewController(), root.get());
        EXPECT_FALSE(window->isTransitioning());
    }

    std::shared_ptr<RecordingController> root, sheet;
    bool isAnimated;
    int thrownCount = 0;
};

TEST_P(ThrowingHost, LeavesPresentationsUsable) {
    swallow([&] { root->present(sheet, isAnimated); });
    swallow([&] { sheet->dismiss(isAnimated); });

    EXPECT_EQ(thrownCount, 1);
    EXPECT_EQ(root->presentedViewController(), nullptr);
    EXPECT_EQ(sheet->presentingViewController(), nullptr);
    expectUsable();
}

TEST_P(ThrowingHost, LetsWhatWaitsBePresented) {
    swallow([&] { root->present(sheet, isAnimated); });
    const bool isThere = root->presentedViewController() == sheet.get();
    const auto next = controller("next");
    (isThere ? sheet : root)->present(next, true);
    bed.runFor(1);

    EXPECT_EQ(window->frontMostViewController(), next.get());
}

INSTANTIATE_TEST_SUITE_P(EachCall, ThrowingHost,
                         testing::Combine(Values(ThrowingCall{"DidLoad", &RecordingController::onDidLoad},
                                                 ThrowingCall{"WillAppear", &RecordingController::onWillAppear},
                                                 ThrowingCall{"DidAppear", &RecordingController::onDidAppear},
                                                 ThrowingCall{"WillDisappear", &RecordingController::onWillDisappear},
                                                 ThrowingCall{"DidDisappear", &RecordingController::onDidDisappear}),
                                          testing::Bool()),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + (std::get<1>(info.param) ? "Animated" : "AtOnce");
                         });

class ThrowingCompletion : public ScreenTest {};

TEST_F(ThrowingCompletion, EndsThePresentationAllTheSame) {
    const auto root = showRoot();
    const auto sheet = controller("sheet");

    EXPECT_THROW(root->present(sheet, false, [] { throw std::runtime_error("the host's"); }), std::runtime_error);
    EXPECT_THROW(sheet->dismiss(false, [] { throw std::runtime_error("the host's"); }), std::runtime_error);
    root->present(sheet, true);
    bed.runFor(1);

    EXPECT_EQ(window->frontMostViewController(), sheet.get());
}

} // namespace
} // namespace proupsells::uikit

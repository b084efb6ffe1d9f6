// A few pages on a screen that can be touched.
#pragma once

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::tests {

using swiftui::Binding;
using swiftui::BuildContext;
using swiftui::ColorView;
using swiftui::ForEach;
using swiftui::TabView;
using swiftui::View;

inline constexpr motion::Animation slow{motion::TimingCurve::linear(), 2};

// Pages as wide as the screen, 300, in a strip of 200 in its middle; the selection is a state of the view around.
struct Pager {
    int count = 4;
    bool isRefused = false;
    std::vector<int> writes;
    std::optional<Binding<int>> selection;

    View body(BuildContext& context) {
        const Binding<int> state = context.state<int>(0);
        selection.emplace(state);
        const Binding<int> watched([state] { return state.get(); },
                                   [this, state](const int& page) {
                                       writes.push_back(page);
                                       if (!isRefused) state.set(page);
                                   });
        return TabView{.selection = watched,
                       .content = {ForEach(count,
                                           [](int page) {
                                               return ColorView{graphics::Color::black} |
                                                      swiftui::accessibilityIdentifier("page" + std::to_string(page));
                                           })}} |
               swiftui::frame({.height = 200}) | swiftui::accessibilityIdentifier("pager");
    }
};

struct PagerView {
    Pager* pager;
    View body(BuildContext& context) const { return pager->body(context); }
};

struct Pages {
    explicit Pages(int count = 4) : pager{.count = count} {}

    Pager pager;
    TouchScreen screen{[this] { return PagerView{&pager}; }};

    void select(int page, std::optional<motion::Animation> animation = std::nullopt) {
        if (animation) {
            swiftui::withAnimation(*animation, [&] { pager.selection->set(page); });
        } else {
            pager.selection->set(page);
        }
        screen.settle();
    }
    int selected() { return pager.selection->get(); }
    // In pages.
    double position() { return -screen.frame("page0").minX() / 300; }
    std::vector<int> shown() {
        std::vector<int> result;
        for (int page = 0; page < pager.count; ++page)
            if (screen.isOnScreen("page" + std::to_string(page))) result.push_back(page);
        return result;
    }
};

} // namespace proupsells::tests

// A small screen on which something changes with an animation.
#pragma once

#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {

constexpr motion::Animation linear(double duration_s, double delay_s = 0) {
    return {motion::TimingCurve::linear(), duration_s, delay_s};
}

class Animating : public testing::Test {
protected:
    bool isOn = false;
    std::unique_ptr<Screen> screen;

    void show(std::function<View()> root) { screen = std::make_unique<Screen>(std::move(root), Size{100, 100}); }
    void change(std::optional<motion::Animation> animation) {
        const Transaction::Scope scope(animation);
        isOn = !isOn;
        screen->host().setNeedsUpdate();
        screen->settle();
    }
    // The values at 0, 25, 50, 75 and 100 % of a second.
    template <class Read>
    std::vector<double> sampled(Read read) {
        std::vector<double> values{read()};
        for (int i = 0; i < 4; ++i) {
            screen->runFor(0.25);
            values.push_back(read());
        }
        return values;
    }
};

} // namespace proupsells::swiftui::tests

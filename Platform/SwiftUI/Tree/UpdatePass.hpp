// What nodes are told while a part of the tree is brought up to date.
#pragma once

#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"

namespace proupsells::swiftui {

class ViewHost;

struct UpdatePass {
    ViewHost& host;
    const EnvironmentValues* environment = nullptr;
    const motion::Animation* animation = nullptr; // by which changes are shown; null: at once
    double now_s = 0;

    UpdatePass with(const EnvironmentValues& other) const {
        UpdatePass result = *this;
        result.environment = &other;
        return result;
    }
    UpdatePass with(const motion::Animation* other) const {
        UpdatePass result = *this;
        result.animation = other;
        return result;
    }
};

} // namespace proupsells::swiftui

// The paged header of the paywall: moves on by itself, and by swipes and its page indicator.
#pragma once

#include <memory>
#include <vector>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/Page.hpp"

namespace proupsells {

// 254 points high, as wide as it is offered. Without any page the program is stopped.
struct HeaderCarousel {
    std::shared_ptr<const std::vector<Page>> pages;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const HeaderCarousel&) const = default;

private:
    swiftui::View page(int index) const;
    swiftui::View bottomRow(const swiftui::Binding<int>& currentPage, const swiftui::EnvironmentValues& environment) const;
};

} // namespace proupsells

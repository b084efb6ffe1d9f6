// A host application that sells the Pro plans, as far as all of ours share it.
#pragma once

#include <ProUpsells/Icu.hpp>
#include <ProUpsells/ProUpsells.hpp>
#include <ProUpsells/Raster.hpp>
#include <algorithm>
#include <memory>

#include "Common/Measure.hpp"

namespace peers::ours {

// In points.
inline constexpr proupsells::geometry::Size screenSize{375, 800};
inline constexpr proupsells::geometry::PhysicalInsets safeArea{0, 0, 34, 0};
inline constexpr double scale = 2;

// The main run loop, the backends' services, and a window with the host's own screen in it.
class Host {
public:
    explicit Host(std::shared_ptr<proupsells::runloop::Clock> clock);

    proupsells::runloop::MainRunLoop& loop() { return m_loop; }
    const std::shared_ptr<proupsells::uikit::UIWindow>& window() { return m_window; }
    void present(const std::shared_ptr<proupsells::uikit::UIViewController>& screen) {
        m_window->rootViewController()->present(screen, false);
    }
    void tap(proupsells::geometry::Point place);
    // Ends the program where the screen has no such part.
    proupsells::accessibility::SemanticNode part(std::string_view identifier);

private:
    proupsells::runloop::MainRunLoop m_loop;
    proupsells::host::Installation m_services;
    std::shared_ptr<proupsells::uikit::UIWindow> m_window;
};

std::shared_ptr<proupsells::uikit::UIViewController> makePaywall();
std::shared_ptr<proupsells::uikit::UIViewController> makeStorePage();
// How far the page in front can be scrolled, in points. It has the longest content of all.
double largestOffset(const proupsells::accessibility::SemanticNode& screen);

} // namespace peers::ours

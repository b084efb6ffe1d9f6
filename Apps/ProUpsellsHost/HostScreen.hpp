// What the host itself shows, below the paywall.
#pragma once

#include <memory>

#include "Apps/ProUpsellsHost/Word.hpp"

namespace proupsells::uikit {
class UIViewController;
}

namespace proupsells::hostprogram {

enum class HostScreen {
    plain,
    scene, // see SceneViewController
};

inline constexpr Word<HostScreen> hostScreens[] = {
    {"plain", HostScreen::plain},
    {"scene", HostScreen::scene},
};

std::shared_ptr<uikit::UIViewController> makeHostScreen(HostScreen screen);

} // namespace proupsells::hostprogram

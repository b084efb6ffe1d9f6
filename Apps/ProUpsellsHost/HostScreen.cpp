#include "Apps/ProUpsellsHost/HostScreen.hpp"

#include "Apps/ProUpsellsHost/HostViewController.hpp"
#include "Apps/ProUpsellsHost/SceneViewController.hpp"

namespace proupsells::hostprogram {

std::shared_ptr<uikit::UIViewController> makeHostScreen(HostScreen screen) {
    if (screen == HostScreen::scene) return std::make_shared<SceneViewController>();
    return std::make_shared<HostViewController>();
}

} // namespace proupsells::hostprogram

// The host's own screen, which the paywall covers.
#pragma once

#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::hostprogram {

class HostViewController final : public uikit::UIViewController {
public:
    std::string_view typeName() const override { return "HostViewController"; }
    void viewDidLoad() override;
};

} // namespace proupsells::hostprogram

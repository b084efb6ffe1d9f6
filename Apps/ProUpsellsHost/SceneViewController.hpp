// A host application's screen, as far as it matters: something to stand on.
#pragma once

#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::hostprogram {

// A desk in sand with three posters in the making; nothing on it can be used.
class SceneViewController final : public uikit::UIViewController {
public:
    std::string_view typeName() const override { return "SceneViewController"; }
    void viewDidLoad() override;
};

} // namespace proupsells::hostprogram

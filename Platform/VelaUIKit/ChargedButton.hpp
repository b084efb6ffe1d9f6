// A button that is easier to hit than it is large.
#pragma once

#include "Platform/UIKit/Controls/UIButton.hpp"

namespace proupsells::velauikit {

// Takes touches around its centre in at least 44 × 44 points, however small its frame is.
class ChargedButton : public uikit::UIButton {
public:
    std::string_view typeName() const override { return "ChargedButton"; }

    bool pointInside(geometry::Point point) const override;
};

} // namespace proupsells::velauikit

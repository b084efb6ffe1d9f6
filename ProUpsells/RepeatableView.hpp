// Makes the tiles of a row.
#pragma once

#include <memory>

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells {

class RepeatableView {
public:
    virtual ~RepeatableView() = default;

    // A new view on each call.
    virtual std::shared_ptr<uikit::UIView> makeView() const = 0;
};

} // namespace proupsells

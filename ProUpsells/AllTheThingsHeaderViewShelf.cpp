#include "ProUpsells/AllTheThingsHeaderViewShelf.hpp"

#include "ProUpsells/LabelHeaderView.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

std::shared_ptr<uikit::UIViewController> AllTheThingsHeaderViewShelf::makeViewController() const {
    return headerController(std::make_shared<LabelHeaderView>(geometry::Rect{}));
}

} // namespace proupsells

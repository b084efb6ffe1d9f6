#include "ProUpsells/ProIntroHeaderViewShelf.hpp"

#include "ProUpsells/ShelfStrips.hpp"
#include "ProUpsells/VelaProHeaderView.hpp"

namespace proupsells {

std::shared_ptr<uikit::UIViewController> ProIntroHeaderViewShelf::makeViewController() const {
    return headerController(std::make_shared<VelaProHeaderView>(geometry::Rect{}));
}

} // namespace proupsells

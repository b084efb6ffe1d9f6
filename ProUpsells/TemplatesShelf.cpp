#include "ProUpsells/TemplatesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"
#include "ProUpsells/TemplatesVideoView.hpp"

namespace proupsells {

std::string TemplatesShelf::footerTitle() const { return foundation::localizedString("Get full access to all templates"); }

std::string TemplatesShelf::footerSubTitle() const {
    return foundation::localizedString("Design on the go with professionally designed templates, updated daily.");
}

std::shared_ptr<uikit::UIViewController> TemplatesShelf::makeViewController() const {
    return withTexts(viewStrip(*this, std::make_shared<TemplatesVideoView>()), *this);
}

} // namespace proupsells

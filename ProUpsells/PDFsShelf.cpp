#include "ProUpsells/PDFsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

std::string PDFsShelf::footerTitle() const { return foundation::localizedString("Print with PDF export"); }

std::string PDFsShelf::footerSubTitle() const {
    return foundation::localizedString("Export PDFs for high-quality printing of posters, cards, stationery and more.");
}

std::shared_ptr<uikit::UIViewController> PDFsShelf::makeViewController() const {
    return withTexts(imageStrip(*this, ImageResource::pdfs0StorePageShelfImage()), *this);
}

} // namespace proupsells

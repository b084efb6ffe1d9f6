#include "ProUpsells/PDFsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

using foundation::localizable;

PDFsShelf::PDFsShelf()
    : LazyStorePageShelf({.className = "PDFsShelf",
                          .height = 336,
                          .bottomInset = 50,
                          .title = localizable("Print with PDF export"),
                          .subtitle = localizable("Export PDFs for high-quality printing of posters, cards, stationery and more."),
                          .images = {ImageResource::pdfs0StorePageShelfImage()}}) {}

LazyStorePageShelf::Controller PDFsShelf::makeViewController() const {
    return withTexts(imageStrip(ImageResource::pdfs0StorePageShelfImage()));
}

} // namespace proupsells

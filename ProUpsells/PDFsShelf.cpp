#include "ProUpsells/PDFsShelf.hpp"

namespace proupsells {

PDFsShelf::PDFsShelf()
    : LazyStorePageShelf({.className = "PDFsShelf",
                          .height = 336,
                          .bottomInset = 50,
                          .title = "Print with PDF export",
                          .subtitle = "Export PDFs for high-quality printing of posters, cards, stationery and more.",
                          .images = {ImageResource::pdfs0StorePageShelfImage()}}) {}

LazyStorePageShelf::Controller PDFsShelf::makeViewController() const {
    return withTexts(imageStrip(ImageResource::pdfs0StorePageShelfImage()));
}

} // namespace proupsells

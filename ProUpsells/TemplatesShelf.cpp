#include "ProUpsells/TemplatesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/TemplatesVideoView.hpp"

namespace proupsells {

using foundation::localizable;

TemplatesShelf::TemplatesShelf()
    : LazyStorePageShelf({.className = "TemplatesShelf",
                          .height = 290,
                          .bottomInset = 40,
                          .title = localizable("Get full access to all templates"),
                          .subtitle = localizable("Design on the go with professionally designed templates, updated daily.")}) {}

LazyStorePageShelf::Controller TemplatesShelf::makeViewController() const {
    return withTexts(viewStrip(std::make_shared<TemplatesVideoView>()));
}

} // namespace proupsells

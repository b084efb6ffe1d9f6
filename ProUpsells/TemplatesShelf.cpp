#include "ProUpsells/TemplatesShelf.hpp"

#include "ProUpsells/TemplatesVideoView.hpp"

namespace proupsells {

TemplatesShelf::TemplatesShelf()
    : LazyStorePageShelf({.className = "TemplatesShelf",
                          .height = 290,
                          .bottomInset = 40,
                          .title = "Get full access to all templates",
                          .subtitle = "Design on the go with professionally designed templates, updated daily."}) {}

LazyStorePageShelf::Controller TemplatesShelf::makeViewController() const {
    return withTexts(viewStrip(std::make_shared<TemplatesVideoView>()));
}

} // namespace proupsells

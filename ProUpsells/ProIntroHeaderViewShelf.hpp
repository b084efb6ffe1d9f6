// The branded header on top of the page.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class ProIntroHeaderViewShelf : public LazyStorePageShelf {
public:
    ProIntroHeaderViewShelf();

    double heightAddedForTexts(double width, const uikit::UITraitCollection& traits) const override;

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

// The branded header on top of the page.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class ProIntroHeaderViewShelf : public LazyStorePageShelf {
public:
    ProIntroHeaderViewShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

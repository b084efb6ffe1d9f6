// A drifting row of page layouts.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class LayoutCollectionsShelf : public LazyStorePageShelf {
public:
    LayoutCollectionsShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

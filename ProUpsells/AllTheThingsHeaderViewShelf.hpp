// Another header for the page, which the page does not list.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class AllTheThingsHeaderViewShelf : public LazyStorePageShelf {
public:
    AllTheThingsHeaderViewShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

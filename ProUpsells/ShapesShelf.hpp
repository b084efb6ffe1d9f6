// A drifting row of shapes.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class ShapesShelf : public LazyStorePageShelf {
public:
    ShapesShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

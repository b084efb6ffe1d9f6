// A clip of a brand's logo, fonts and colours.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class BrandAssetsShelf : public LazyStorePageShelf {
public:
    BrandAssetsShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

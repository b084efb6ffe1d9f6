// Typefaces and graphics, two rows that drift apart.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class PremiumFontsShelf : public LazyStorePageShelf {
public:
    PremiumFontsShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

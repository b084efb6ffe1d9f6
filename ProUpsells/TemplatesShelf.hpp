// A clip of templates being filled in.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class TemplatesShelf : public LazyStorePageShelf {
public:
    TemplatesShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

// A print sheet.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class PDFsShelf : public LazyStorePageShelf {
public:
    PDFsShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

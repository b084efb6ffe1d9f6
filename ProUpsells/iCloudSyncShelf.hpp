// Devices that share a document. Listed only when the host says so.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class iCloudSyncShelf : public LazyStorePageShelf {
public:
    iCloudSyncShelf();

protected:
    Controller makeViewController() const override;
};

} // namespace proupsells

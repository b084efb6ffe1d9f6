#include "ProUpsells/iCloudSyncShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

std::string iCloudSyncShelf::footerTitle() const { return foundation::localizedString("Never lose your projects"); }

std::string iCloudSyncShelf::footerSubTitle() const {
    return foundation::localizedString("Turn on iCloud sync and access your projects from new or other iOS devices.");
}

std::shared_ptr<uikit::UIViewController> iCloudSyncShelf::makeViewController() const {
    return withTexts(imageStrip(*this, ImageResource::iCloudStorePageShelfImage()), *this);
}

} // namespace proupsells

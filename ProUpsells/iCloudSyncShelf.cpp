#include "ProUpsells/iCloudSyncShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

using foundation::localizable;

iCloudSyncShelf::iCloudSyncShelf()
    : LazyStorePageShelf({.className = "iCloudSyncShelf",
                          .height = 278,
                          .bottomInset = 50,
                          .title = localizable("Never lose your projects"),
                          .subtitle = localizable("Turn on iCloud sync and access your projects from new or other iOS devices."),
                          .images = {ImageResource::iCloudStorePageShelfImage()}}) {}

LazyStorePageShelf::Controller iCloudSyncShelf::makeViewController() const {
    return withTexts(imageStrip(ImageResource::iCloudStorePageShelfImage()));
}

} // namespace proupsells

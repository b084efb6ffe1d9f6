#include "ProUpsells/iCloudSyncShelf.hpp"

namespace proupsells {

iCloudSyncShelf::iCloudSyncShelf()
    : LazyStorePageShelf({.className = "iCloudSyncShelf",
                          .height = 278,
                          .bottomInset = 50,
                          .title = "Never lose your projects",
                          .subtitle = "Turn on iCloud sync and access your projects from new or other iOS devices.",
                          .images = {ImageResource::iCloudStorePageShelfImage()}}) {}

LazyStorePageShelf::Controller iCloudSyncShelf::makeViewController() const {
    return withTexts(imageStrip(ImageResource::iCloudStorePageShelfImage()));
}

} // namespace proupsells

// How shelves put their strips together.
#pragma once

#include <memory>

#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/StorePageShelfViewController.hpp"
#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells {

// A drifting row of one image over and over, 16 points apart. `row` counts the shelf's strips from 0, from the top.
std::shared_ptr<StorePageShelfViewController> repeatingStrip(const VelaProStorePageShelf& shelf, int row,
                                                             const ImageResource& image,
                                                             StorePageShelfViewController::ScrollDirection direction);
// One image that stands still.
std::shared_ptr<StorePageShelfViewController> imageStrip(const VelaProStorePageShelf& shelf, const ImageResource& image);
// One view that stands still.
std::shared_ptr<StorePageShelfViewController> viewStrip(const VelaProStorePageShelf& shelf,
                                                        const std::shared_ptr<uikit::UIView>& view);

// Gives a strip its accessibility identifier.
void nameStrip(StorePageShelfViewController& strip, const VelaProStorePageShelf& shelf, int row);

// A plain controller that `header` fills.
std::shared_ptr<uikit::UIViewController> headerController(const std::shared_ptr<uikit::UIView>& header);

// The picture over the shelf's title and subtitle.
std::shared_ptr<uikit::UIViewController> withTexts(const std::shared_ptr<uikit::UIViewController>& picture,
                                                   const VelaProStorePageShelf& shelf);

} // namespace proupsells

// Says what a collection shows.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Collection/IndexPath.hpp"
#include "Platform/UIKit/Views/UIKitTypes.hpp"

namespace proupsells::uikit {

class UICollectionReusableView;
class UICollectionView;
class UICollectionViewCell;

// What stands above or below a section's items.
enum class UICollectionElementKind { sectionHeader, sectionFooter };

// An item in words.
struct UICollectionItemDescription {
    std::string identifier;  // as its cell's
    std::string name;        // in the person's language
    bool takesFocus = false; // keys stop at the cell
};

class PROUPSELLS_EXPORT UICollectionViewDataSource {
public:
    virtual ~UICollectionViewDataSource() = default;

    // How many sections the collection has, and items a section.
    virtual std::size_t numberOfSections(UICollectionView&) { return 1; }
    virtual std::size_t collectionViewNumberOfItemsInSection(UICollectionView& collectionView, std::size_t section) = 0;
    // A cell from dequeueReusableCell, filled. Null stops the program.
    virtual std::shared_ptr<UICollectionViewCell> collectionViewCellForItemAt(UICollectionView& collectionView,
                                                                              IndexPath indexPath) = 0;
    // What an item is, for those who hear the collection. Asked for items that have no cell, as they are out of sight; one without
    // a name is left out.
    virtual UICollectionItemDescription collectionViewDescriptionOfItemAt(UICollectionView&, IndexPath) { return {}; }
    // Images that an item shows at their natural size. Asked for the item that follows those in sight, so that they are ready when
    // it comes.
    virtual std::vector<UIImage> collectionViewImagesForItemAt(UICollectionView&, IndexPath) { return {}; }
    // Asked where the delegate gives headers or footers a height; the index path's item is 0. Null stops the program.
    virtual std::shared_ptr<UICollectionReusableView>
    collectionViewViewForSupplementaryElementOfKind(UICollectionView&, UICollectionElementKind, IndexPath) {
        return nullptr;
    }
};

} // namespace proupsells::uikit

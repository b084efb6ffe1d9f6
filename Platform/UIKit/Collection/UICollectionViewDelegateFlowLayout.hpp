// Says how large a collection's items are, and is told which of them can be seen.
#pragma once

#include <cstddef>
#include <optional>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Collection/UICollectionViewDataSource.hpp"
#include "Platform/UIKit/Views/UIScrollViewDelegate.hpp"

namespace proupsells::uikit {

class UICollectionViewFlowLayout;

// What is absent is the layout's own value.
class PROUPSELLS_EXPORT UICollectionViewDelegateFlowLayout : public UIScrollViewDelegate {
public:
    // An item's size and the room around a section's items, in points.
    virtual std::optional<geometry::Size> collectionViewLayoutSizeForItemAt(UICollectionView&, UICollectionViewFlowLayout&,
                                                                            IndexPath) {
        return std::nullopt;
    }
    virtual std::optional<geometry::PhysicalInsets>
    collectionViewLayoutInsetForSectionAt(UICollectionView&, UICollectionViewFlowLayout&, std::size_t /*section*/) {
        return std::nullopt;
    }

    // Of headers and footers the height counts; 0: none.
    virtual std::optional<geometry::Size>
    collectionViewLayoutReferenceSizeForHeaderInSection(UICollectionView&, UICollectionViewFlowLayout&, std::size_t /*section*/) {
        return std::nullopt;
    }
    virtual std::optional<geometry::Size>
    collectionViewLayoutReferenceSizeForFooterInSection(UICollectionView&, UICollectionViewFlowLayout&, std::size_t /*section*/) {
        return std::nullopt;
    }

    // The cell stands in the collection at its full size and is about to be seen.
    virtual void collectionViewWillDisplayForItemAt(UICollectionView&, UICollectionViewCell&, IndexPath) {}
    // The cell cannot be seen any more and has left the collection. The index path is the one that it was shown for.
    virtual void collectionViewDidEndDisplayingForItemAt(UICollectionView&, UICollectionViewCell&, IndexPath) {}
    // A header or a footer is about to be seen, or has left the collection; the index path's item is 0.
    virtual void collectionViewWillDisplaySupplementaryView(UICollectionView&, UICollectionReusableView&, UICollectionElementKind,
                                                            IndexPath) {}
    virtual void collectionViewDidEndDisplayingSupplementaryView(UICollectionView&, UICollectionReusableView&,
                                                                 UICollectionElementKind, IndexPath) {}
};

} // namespace proupsells::uikit

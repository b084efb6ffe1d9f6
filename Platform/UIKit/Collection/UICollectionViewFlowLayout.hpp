// Items in rows from the top down, section by section.
#pragma once

#include <vector>

#include "Platform/Geometry/Intervals.hpp"
#include "Platform/UIKit/Collection/UICollectionViewDelegateFlowLayout.hpp"

namespace proupsells::uikit {

// Where one item, header or footer stands, in content coordinates.
struct UICollectionViewLayoutAttributes {
    enum class Category { cell, sectionHeader, sectionFooter };

    Category category = Category::cell;
    IndexPath indexPath;
    geometry::Rect frame;

    bool operator==(const UICollectionViewLayoutAttributes&) const = default;
};

// A row takes as many items as fit beside each other with at least the interitem spacing; what is left over goes between them,
// except in a section's last row. The values here stand where the delegate has none of its own.
class UICollectionViewFlowLayout {
public:
    double minimumLineSpacing = 10;
    double minimumInteritemSpacing = 10;
    geometry::Size itemSize{50, 50};
    geometry::PhysicalInsets sectionInset;
    geometry::Size headerReferenceSize;
    geometry::Size footerReferenceSize;

    // Asks the data source and the delegate, either of which may be absent, and places everything in `width` points.
    void prepare(UICollectionView& collectionView, UICollectionViewDataSource* dataSource,
                 UICollectionViewDelegateFlowLayout* delegate, double width, bool isRightToLeft);
    geometry::Size contentSize() const { return m_contentSize; }
    // From the top down.
    const std::vector<UICollectionViewLayoutAttributes>& allAttributes() const { return m_attributes; }
    // Those with an area in common with `rect`, from the top down.
    std::vector<UICollectionViewLayoutAttributes> attributesIn(const geometry::Rect& rect) const;

private:
    struct Pass;

    std::vector<UICollectionViewLayoutAttributes> m_attributes;
    geometry::Intervals m_extents; // from top to bottom
    geometry::Size m_contentSize;
};

} // namespace proupsells::uikit

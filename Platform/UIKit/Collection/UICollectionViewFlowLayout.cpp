#include "Platform/UIKit/Collection/UICollectionViewFlowLayout.hpp"

#include <cmath>

namespace proupsells::uikit {

namespace {

// Longer than anything that can be scrolled to.
constexpr double longest = 1e9;

double finite(double value) { return std::isnan(value) ? 0 : std::clamp(value, -longest, longest); }

geometry::Size finite(geometry::Size size) { return {std::max(0.0, finite(size.width)), std::max(0.0, finite(size.height))}; }

geometry::PhysicalInsets finite(const geometry::PhysicalInsets& insets) {
    return {finite(insets.top), finite(insets.left), finite(insets.bottom), finite(insets.right)};
}

} // namespace

using Attributes = UICollectionViewLayoutAttributes;

// Goes through the sections from the top down.
struct UICollectionViewFlowLayout::Pass {
    UICollectionViewFlowLayout& layout;
    UICollectionView& collectionView;
    UICollectionViewDataSource& dataSource;
    UICollectionViewDelegateFlowLayout& delegate;
    double width;
    double y = 0;
    std::vector<Attributes> row;
    double rowWidth = 0;

    void addSection(std::size_t section) {
        const auto inset =
            finite(delegate.collectionViewLayoutInsetForSectionAt(collectionView, layout, section).value_or(layout.sectionInset));
        addBand(Attributes::Category::sectionHeader, section,
                delegate.collectionViewLayoutReferenceSizeForHeaderInSection(collectionView, layout, section)
                    .value_or(layout.headerReferenceSize));
        y += inset.top;
        addItems(section, inset);
        y += inset.bottom;
        addBand(Attributes::Category::sectionFooter, section,
                delegate.collectionViewLayoutReferenceSizeForFooterInSection(collectionView, layout, section)
                    .value_or(layout.footerReferenceSize));
    }

    void addBand(Attributes::Category category, std::size_t section, geometry::Size size) {
        const double height = finite(size).height;
        if (height > 0) layout.m_attributes.push_back({category, {section, 0}, {{0, y}, {width, height}}});
        y += height;
    }

    void addItems(std::size_t section, const geometry::PhysicalInsets& inset) {
        const std::size_t count = dataSource.collectionViewNumberOfItemsInSection(collectionView, section);
        const double room = width - inset.left - inset.right;
        for (std::size_t item = 0; item < count; ++item) {
            const IndexPath indexPath{section, item};
            const geometry::Size size =
                finite(delegate.collectionViewLayoutSizeForItemAt(collectionView, layout, indexPath).value_or(layout.itemSize));
            if (!row.empty() && rowWidth + layout.minimumInteritemSpacing + size.width > room) {
                endRow(inset, room, false);
                y += layout.minimumLineSpacing;
            }
            rowWidth += size.width + (row.empty() ? 0 : layout.minimumInteritemSpacing);
            row.push_back({Attributes::Category::cell, indexPath, {{0, y}, size}});
        }
        endRow(inset, room, true);
    }

    void endRow(const geometry::PhysicalInsets& inset, double room, bool isLast) {
        double height = 0;
        for (const Attributes& item : row) height = std::max(height, item.frame.height());
        const double left = std::max(0.0, room - rowWidth);
        const double stretch = isLast || row.size() < 2 ? 0 : left / double(row.size() - 1);
        double x = inset.left;
        for (Attributes& item : row) {
            item.frame.origin = {x, y + (height - item.frame.height()) / 2};
            x += item.frame.width() + layout.minimumInteritemSpacing + stretch;
            layout.m_attributes.push_back(item);
        }
        y += height;
        row.clear();
        rowWidth = 0;
    }
};

void UICollectionViewFlowLayout::prepare(UICollectionView& collectionView, UICollectionViewDataSource* dataSource,
                                         UICollectionViewDelegateFlowLayout* delegate, double width, bool isRightToLeft) {
    m_attributes.clear();
    m_contentSize = {width, 0};
    if (dataSource) {
        UICollectionViewDelegateFlowLayout silent;
        Pass pass{*this, collectionView, *dataSource, delegate ? *delegate : silent, width, 0, {}, 0};
        const std::size_t count = dataSource->numberOfSections(collectionView);
        for (std::size_t section = 0; section < count; ++section) pass.addSection(section);
        m_contentSize.height = std::max(0.0, pass.y);
    }
    if (isRightToLeft)
        for (Attributes& attributes : m_attributes) attributes.frame.origin.x = width - attributes.frame.maxX();
    m_extents.assign(m_attributes.size(),
                     [this](std::size_t index) { return geometry::extentOf(m_attributes[index].frame, geometry::Axis::vertical); });
}

std::vector<UICollectionViewLayoutAttributes> UICollectionViewFlowLayout::attributesIn(const geometry::Rect& rect) const {
    const auto [first, end] = m_extents.reachingInto(rect.minY(), rect.maxY());
    std::vector<Attributes> found;
    for (std::size_t index = first; index < end; ++index)
        if (m_attributes[index].frame.intersects(rect)) found.push_back(m_attributes[index]);
    return found;
}

} // namespace proupsells::uikit

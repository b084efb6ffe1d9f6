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
    m_tops.resize(m_attributes.size());
    m_bottoms.resize(m_attributes.size());
    for (std::size_t i = 0; i < m_attributes.size(); ++i)
        m_bottoms[i] = std::max(i > 0 ? m_bottoms[i - 1] : -geometry::infinity, m_attributes[i].frame.maxY());
    for (std::size_t i = m_attributes.size(); i-- > 0;)
        m_tops[i] = std::min(i + 1 < m_tops.size() ? m_tops[i + 1] : geometry::infinity, m_attributes[i].frame.minY());
}

std::vector<UICollectionViewLayoutAttributes> UICollectionViewFlowLayout::attributesIn(const geometry::Rect& rect) const {
    const auto first = std::upper_bound(m_bottoms.begin(), m_bottoms.end(), rect.minY()) - m_bottoms.begin();
    const auto end = std::lower_bound(m_tops.begin(), m_tops.end(), rect.maxY()) - m_tops.begin();
    std::vector<Attributes> found;
    for (auto i = first; i < end; ++i)
        if (m_attributes[std::size_t(i)].frame.intersects(rect)) found.push_back(m_attributes[std::size_t(i)]);
    return found;
}

} // namespace proupsells::uikit

// A scrolled list of items, of which only those that can be seen have views.
#pragma once

#include "Platform/UIKit/Collection/UICollectionViewFlowLayout.hpp"
#include "Platform/UIKit/Collection/UICollectionViewReusePool.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::uikit {

class UICollectionView : public UIScrollView {
public:
    // The layout must not be null; otherwise stops the program.
    explicit UICollectionView(std::shared_ptr<UICollectionViewFlowLayout> layout = std::make_shared<UICollectionViewFlowLayout>());
    std::string_view typeName() const override { return "UICollectionView"; }

    const std::shared_ptr<UICollectionViewFlowLayout>& collectionViewLayout() const { return m_layout; }

    // Both are held weakly. An item needs a data source; without a delegate the layout's own values count.
    void setDataSource(std::weak_ptr<UICollectionViewDataSource> dataSource);
    void setFlowLayoutDelegate(std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate);

    // Asks for everything anew at the next layout: all cells that are shown end their display before any new one begins. Where it
    // is scrolled to stays, as far as there is content.
    void reloadData();

    // Only while the data source is asked for views. Views of a class are made with their default constructor when none waits.
    template <class Cell>
    std::shared_ptr<Cell> dequeueReusableCell(IndexPath) {
        return m_pool.dequeue<Cell>();
    }
    template <class View>
    std::shared_ptr<View> dequeueReusableSupplementaryView(UICollectionElementKind, IndexPath) {
        return m_pool.dequeue<View>();
    }

    // Null for an item that cannot be seen.
    std::shared_ptr<UICollectionViewCell> cellForItem(IndexPath indexPath) const;
    // In ascending order.
    std::vector<IndexPath> indexPathsForVisibleItems() const;
    // As of the last layout; empty for an item that there is not.
    geometry::Rect frameForItem(IndexPath indexPath) const;

    void layoutSubviews() override;

protected:
    void contentOffsetDidChange() override;
    void frameDidChange(const geometry::Rect& previous) override;
    bool followsMovement() const override { return true; }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;
    // While nobody scrolls, the item that comes next is looked at.
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;

private:
    struct Shown {
        UICollectionViewLayoutAttributes attributes;
        std::shared_ptr<UICollectionReusableView> view;
    };

    void prepareLayoutIfNeeded();
    accessibility::SemanticNode nodeForItem(const UICollectionViewLayoutAttributes& attributes,
                                            const graphics::PaintState& state) const;
    // Shows what is in the bounds and nothing else.
    void tile();
    void findItemAhead();
    void endDisplayOfAllBut(const std::vector<UICollectionViewLayoutAttributes>& kept);
    void display(const UICollectionViewLayoutAttributes& attributes);
    std::shared_ptr<UICollectionReusableView> makeView(const UICollectionViewLayoutAttributes& attributes);
    void tellWillDisplay(const Shown& shown);
    void tellDidEndDisplaying(const Shown& shown);

    std::shared_ptr<UICollectionViewFlowLayout> m_layout;
    std::weak_ptr<UICollectionViewDataSource> m_dataSource;
    std::weak_ptr<UICollectionViewDelegateFlowLayout> m_flowDelegate;
    UICollectionViewReusePool m_pool;
    std::vector<Shown> m_shown;           // from the top down
    std::optional<IndexPath> m_itemAhead; // the first one below those in sight
    std::vector<UIImage> m_imagesAhead;   // that it shows
    bool m_needsPreparation = true;
    bool m_needsReload = true;
    bool m_isTiling = false;
    bool m_mustTileAgain = false;
    double m_preparedWidth = 0;
    bool m_isPreparedRightToLeft = false;
};

} // namespace proupsells::uikit

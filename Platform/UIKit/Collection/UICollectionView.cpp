#include "Platform/UIKit/Collection/UICollectionView.hpp"

#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Commons/ScopeEnd.hpp"

namespace proupsells::uikit {

using Attributes = UICollectionViewLayoutAttributes;

namespace {

bool isSameElement(const Attributes& a, const Attributes& b) { return a.category == b.category && a.indexPath == b.indexPath; }

UICollectionElementKind kindOf(const Attributes& attributes) {
    return attributes.category == Attributes::Category::sectionHeader ? UICollectionElementKind::sectionHeader
                                                                      : UICollectionElementKind::sectionFooter;
}

} // namespace

UICollectionView::UICollectionView(std::shared_ptr<UICollectionViewFlowLayout> layout) : m_layout(std::move(layout)) {
    if (!m_layout) commons::fatalError("UICollectionView: a layout is missing");
}

void UICollectionView::setDataSource(std::weak_ptr<UICollectionViewDataSource> dataSource) {
    m_dataSource = std::move(dataSource);
    reloadData();
}

void UICollectionView::setFlowLayoutDelegate(std::weak_ptr<UICollectionViewDelegateFlowLayout> delegate) {
    m_flowDelegate = delegate;
    setDelegate(std::move(delegate));
    m_needsPreparation = true;
    setNeedsLayout();
}

void UICollectionView::reloadData() {
    m_needsReload = true;
    setNeedsLayout();
}

// --- Layout ---

void UICollectionView::frameDidChange(const geometry::Rect& previous) {
    if (previous.size != frame().size) m_needsPreparation = true; // items may follow the height, too
    UIScrollView::frameDidChange(previous);
}

void UICollectionView::contentOffsetDidChange() { setNeedsLayout(); }

void UICollectionView::prepareLayoutIfNeeded() {
    const geometry::PhysicalInsets inset = adjustedContentInset();
    const double width = std::max(0.0, frame().width() - inset.left - inset.right);
    if (!m_needsPreparation && width == m_preparedWidth && isRightToLeft() == m_isPreparedRightToLeft) return;
    m_needsPreparation = false;
    m_preparedWidth = width;
    m_isPreparedRightToLeft = isRightToLeft();
    const auto dataSource = m_dataSource.lock();
    const auto delegate = m_flowDelegate.lock();
    m_layout->prepare(*this, dataSource.get(), delegate.get(), width, m_isPreparedRightToLeft);
    setContentSize(m_layout->contentSize());
    if (!bounds().isEmpty()) clampOffset();
}

// Whoever is told on the way may ask for another layout; that one waits until this one has ended.
void UICollectionView::layoutSubviews() {
    if (m_isTiling) {
        m_mustTileAgain = true;
        return;
    }
    const auto kept = strongReference(*this);
    {
        m_isTiling = true;
        const commons::Finally end([this] { m_isTiling = false; });
        m_mustTileAgain = false;
        tile();
    }
    if (m_mustTileAgain) setNeedsLayout();
}

void UICollectionView::tile() {
    if (std::exchange(m_needsReload, false)) {
        m_itemAhead.reset();
        m_needsPreparation = true;
        endDisplayOfAllBut({});
    }
    prepareLayoutIfNeeded();
    const std::vector<Attributes> wanted = m_layout->attributesIn(bounds());
    endDisplayOfAllBut(wanted);
    for (const Attributes& attributes : wanted) {
        if (m_needsReload || m_needsPreparation) return;
        display(attributes);
    }
    findItemAhead();
}

void UICollectionView::findItemAhead() {
    const geometry::Rect seen = bounds();
    const std::vector<Attributes> below = m_layout->attributesIn(seen.offsetBy({0, seen.height()}));
    const auto next = std::find_if(below.begin(), below.end(), [&](const Attributes& attributes) {
        return attributes.category == Attributes::Category::cell && attributes.frame.minY() >= seen.maxY();
    });
    const std::optional<IndexPath> item = next != below.end() ? std::optional(next->indexPath) : std::nullopt;
    if (item == m_itemAhead) return;
    m_itemAhead = item;
    const auto dataSource = m_dataSource.lock();
    m_imagesAhead = item && dataSource ? dataSource->collectionViewImagesForItemAt(*this, *item) : std::vector<UIImage>();
}

void UICollectionView::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (m_imagesAhead.empty() || isTracking() || isDecelerating()) return;
    graphics::PaintState anywhere;
    anywhere.scheme = state.scheme;
    context.lookAhead([&] {
        for (const UIImage& image : m_imagesAhead)
            if (image) context.image(anywhere, {{}, image->size}, image, UIColor::black.resolved(state.scheme));
    });
}

void UICollectionView::endDisplayOfAllBut(const std::vector<Attributes>& kept) {
    const auto isKept = [&](const Shown& shown) {
        return std::any_of(kept.begin(), kept.end(), [&](const Attributes& a) { return isSameElement(a, shown.attributes); });
    };
    const auto firstEnded = std::stable_partition(m_shown.begin(), m_shown.end(), isKept);
    const std::vector<Shown> ended(std::make_move_iterator(firstEnded), std::make_move_iterator(m_shown.end()));
    m_shown.erase(firstEnded, m_shown.end());
    for (const Shown& shown : ended) {
        shown.view->removeFromSuperview();
        tellDidEndDisplaying(shown);
        m_pool.enqueue(shown.view);
    }
}

void UICollectionView::display(const Attributes& attributes) {
    const auto known = std::find_if(m_shown.begin(), m_shown.end(),
                                    [&](const Shown& shown) { return isSameElement(shown.attributes, attributes); });
    if (known != m_shown.end()) {
        known->attributes = attributes;
        known->view->setFrame(attributes.frame);
        return;
    }
    const Shown shown{attributes, makeView(attributes)};
    const auto place = std::find_if(m_shown.begin(), m_shown.end(), [&](const Shown& other) {
        return other.attributes.frame.minY() > attributes.frame.minY() ||
               (other.attributes.category == attributes.category && other.attributes.indexPath > attributes.indexPath);
    });
    const auto index = std::size_t(place - m_shown.begin());
    m_shown.insert(place, shown);
    shown.view->setFrame(attributes.frame);
    insertSubview(shown.view, index);
    shown.view->layoutIfNeeded();
    tellWillDisplay(shown);
}

std::shared_ptr<UICollectionReusableView> UICollectionView::makeView(const Attributes& attributes) {
    const auto dataSource = m_dataSource.lock();
    if (!dataSource) commons::fatalError("UICollectionView: the data source has gone while items were shown");
    std::shared_ptr<UICollectionReusableView> view;
    if (attributes.category == Attributes::Category::cell)
        view = dataSource->collectionViewCellForItemAt(*this, attributes.indexPath);
    else
        view = dataSource->collectionViewViewForSupplementaryElementOfKind(*this, kindOf(attributes), attributes.indexPath);
    if (!view) commons::fatalError("UICollectionView: the data source has no view for an item, a header or a footer");
    return view;
}

void UICollectionView::tellWillDisplay(const Shown& shown) {
    const auto delegate = m_flowDelegate.lock();
    if (!delegate) return;
    if (shown.attributes.category == Attributes::Category::cell)
        delegate->collectionViewWillDisplayForItemAt(*this, static_cast<UICollectionViewCell&>(*shown.view),
                                                     shown.attributes.indexPath);
    else
        delegate->collectionViewWillDisplaySupplementaryView(*this, *shown.view, kindOf(shown.attributes),
                                                             shown.attributes.indexPath);
}

void UICollectionView::tellDidEndDisplaying(const Shown& shown) {
    const auto delegate = m_flowDelegate.lock();
    if (!delegate) return;
    if (shown.attributes.category == Attributes::Category::cell)
        delegate->collectionViewDidEndDisplayingForItemAt(*this, static_cast<UICollectionViewCell&>(*shown.view),
                                                          shown.attributes.indexPath);
    else
        delegate->collectionViewDidEndDisplayingSupplementaryView(*this, *shown.view, kindOf(shown.attributes),
                                                                  shown.attributes.indexPath);
}

// --- What is shown ---

std::shared_ptr<UICollectionViewCell> UICollectionView::cellForItem(IndexPath indexPath) const {
    for (const Shown& shown : m_shown)
        if (shown.attributes.category == Attributes::Category::cell && shown.attributes.indexPath == indexPath)
            return std::static_pointer_cast<UICollectionViewCell>(shown.view);
    return nullptr;
}

// In the same place as the cell that it would have, and brought in sight like it.
accessibility::SemanticNode UICollectionView::nodeForItem(const Attributes& attributes, const graphics::PaintState& state) const {
    accessibility::SemanticNode node;
    const auto dataSource = m_dataSource.lock();
    if (!dataSource) return node;
    auto& self = const_cast<UICollectionView&>(*this);
    UICollectionItemDescription description = dataSource->collectionViewDescriptionOfItemAt(self, attributes.indexPath);
    node.type = "UICollectionViewCell";
    node.identifier = std::move(description.identifier);
    node.frame = state.toWindow(attributes.frame);
    node.spoken = {.role = accessibility::Role::group, .name = std::move(description.name), .takesFocus = description.takesFocus};
    node.opacity = state.opacity;
    node.reveal = [view = weakReference(self), indexPath = attributes.indexPath] {
        const auto held = view.lock();
        if (held && held->window()) held->scrollRectToVisible(held->frameForItem(indexPath));
    };
    node.revealWhole = node.reveal;
    return node;
}

void UICollectionView::describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const {
    UIScrollView::describe(node, state);
    const std::vector<IndexPath> visible = indexPathsForVisibleItems();
    for (const Attributes& attributes : m_layout->allAttributes()) {
        if (attributes.category != Attributes::Category::cell || cellForItem(attributes.indexPath)) continue;
        accessibility::SemanticNode item = nodeForItem(attributes, state);
        if (item.spoken.name.empty()) continue;
        const bool isBefore = !visible.empty() && attributes.indexPath < visible.front();
        (isBefore ? node.itemsBefore : node.itemsAfter).push_back(std::move(item));
    }
}

std::vector<IndexPath> UICollectionView::indexPathsForVisibleItems() const {
    std::vector<IndexPath> paths;
    for (const Shown& shown : m_shown)
        if (shown.attributes.category == Attributes::Category::cell) paths.push_back(shown.attributes.indexPath);
    std::sort(paths.begin(), paths.end());
    return paths;
}

geometry::Rect UICollectionView::frameForItem(IndexPath indexPath) const {
    for (const Attributes& attributes : m_layout->allAttributes())
        if (attributes.category == Attributes::Category::cell && attributes.indexPath == indexPath) return attributes.frame;
    return {};
}

} // namespace proupsells::uikit

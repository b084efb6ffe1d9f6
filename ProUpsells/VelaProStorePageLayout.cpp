// What stands where on the page.
#include <limits>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/ChargedButton.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/CallToActionButtonProvider.hpp"
#include "ProUpsells/FooterView.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/VelaProStoreCell.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"

namespace proupsells {

namespace {

const uikit::UIColor& pageBackground() { return velauikit::dynamicColor(2); }

std::string closeLabel() { return foundation::localizedString("Close"); }

} // namespace

void VelaProStorePageViewController::viewDidLoad() {
    applyTexts();
    view()->setBackgroundColor(pageBackground());
    collectionView()->setBackgroundColor(pageBackground());
    view()->addSubview(collectionView());
    collectionView()->fillSuperview();
    layoutBottomBar();

    constexpr double roomForBottomBar = 102; // lets the last shelf be scrolled clear of the bar
    geometry::PhysicalInsets inset = collectionView()->contentInset();
    inset.bottom = roomForBottomBar + view()->safeAreaInsets().bottom;
    collectionView()->setContentInset(inset);

    layoutDismissButton();
    startLoadingClips();
}

void VelaProStorePageViewController::applyTexts() {
    setTitle(foundation::localizedString("Marwick Folio Pro"));
    if (m_dismissIconButton) m_dismissIconButton->accessibilityLabel = closeLabel();
    for (const uikit::IndexPath indexPath : collectionView()->indexPathsForVisibleItems())
        if (auto* cell = dynamic_cast<VelaProStoreCell*>(collectionView()->cellForItem(indexPath).get()))
            cell->setSpokenName(m_shelves[indexPath.section]->footerTitle());
}

const std::shared_ptr<uikit::UICollectionView>& VelaProStorePageViewController::collectionView() {
    if (m_collectionView) return m_collectionView;
    m_collectionView = std::make_shared<uikit::UICollectionView>();
    m_collectionView->setDataSource(uikit::weakReference(*this));
    m_collectionView->setFlowLayoutDelegate(uikit::weakReference(*this));
    m_collectionView->setAlwaysBounceVertical(true);
    m_collectionView->setShowsVerticalScrollIndicator(false);
    m_collectionView->setContentInsetAdjustmentBehavior(uikit::UIScrollView::ContentInsetAdjustmentBehavior::never);
    return m_collectionView;
}

void VelaProStorePageViewController::layoutBottomBar() {
    const auto bar = std::make_shared<uikit::UIView>();
    bar->setBackgroundColor(pageBackground());
    bar->setTranslatesAutoresizingMaskIntoConstraints(false);
    uikit::UIView& root = *view();
    root.insertSubviewAbove(bar, *collectionView());
    uikit::NSLayoutConstraint::activate({
        bar->trailingAnchor().constraintEqualTo(root.trailingAnchor()),
        bar->leadingAnchor().constraintEqualTo(root.leadingAnchor()),
        bar->bottomAnchor().constraintEqualTo(root.bottomAnchor()),
    });
    layoutChoosePlanButton(bar);
}

void VelaProStorePageViewController::layoutChoosePlanButton(const std::shared_ptr<uikit::UIView>& bottomBar) {
    const auto button = CallToActionButtonProvider::button(
        uikit::weakReference(*this), [](VelaProStorePageViewController& page) { page.handleChoosePlanButtonTapped(); },
        {uikit::UIControl::Event::touchUpInside});
    button->accessibilityIdentifier = "store.choosePlan";
    bottomBar->addSubview(button);
    uikit::NSLayoutConstraint::activate({
        bottomBar->topAnchor().constraintEqualTo(button->topAnchor(), -22),
        button->centerXAnchor().constraintEqualTo(bottomBar->centerXAnchor()),
        button->leadingAnchor().constraintEqualTo(bottomBar->leadingAnchor(), 22),
        button->bottomAnchor().constraintEqualTo(bottomBar->safeAreaLayoutGuide().bottomAnchor(), -8),
        button->heightAnchor().constraintEqualToConstant(60),
    });
}

const std::shared_ptr<velauikit::ChargedButton>& VelaProStorePageViewController::dismissIconButton() {
    if (m_dismissIconButton) return m_dismissIconButton;
    m_dismissIconButton = std::make_shared<velauikit::ChargedButton>();
    m_dismissIconButton->setTranslatesAutoresizingMaskIntoConstraints(false);
    m_dismissIconButton->setImage(image(ImageResource::closeStorePageButton()));
    m_dismissIconButton->accessibilityLabel = closeLabel();
    m_dismissIconButton->accessibilityIdentifier = "store.close";
    m_dismissIconButton->accessibilitySpoken.order = -1; // before the page
    m_dismissIconButton->addTarget(
        uikit::weakReference(*this), [](VelaProStorePageViewController& page) { page.dismissView(); },
        uikit::UIControl::Event::touchUpInside);
    uikit::NSLayoutConstraint::activate({
        m_dismissIconButton->widthAnchor().constraintEqualToConstant(30),
        m_dismissIconButton->heightAnchor().constraintEqualToConstant(30),
    });
    return m_dismissIconButton;
}

void VelaProStorePageViewController::layoutDismissButton() {
    const auto button = dismissIconButton();
    view()->addSubview(button);
    uikit::NSLayoutConstraint::activate({
        button->topAnchor().constraintEqualTo(view()->safeAreaLayoutGuide().topAnchor(), 37),
        button->leadingAnchor().constraintEqualTo(view()->leadingAnchor(), 23),
    });
}

// --- The list: one section a shelf, one item a section ---

std::size_t VelaProStorePageViewController::numberOfSections(uikit::UICollectionView&) { return m_shelves.size(); }

std::size_t VelaProStorePageViewController::collectionViewNumberOfItemsInSection(uikit::UICollectionView&, std::size_t) {
    return 1;
}

// What the cell shows is embedded only when it is about to be displayed.
std::shared_ptr<uikit::UICollectionViewCell>
VelaProStorePageViewController::collectionViewCellForItemAt(uikit::UICollectionView& collectionView, uikit::IndexPath indexPath) {
    const auto cell = collectionView.dequeueReusableCell<VelaProStoreCell>(indexPath);
    cell->accessibilityIdentifier = collectionViewDescriptionOfItemAt(collectionView, indexPath).identifier;
    cell->setSpokenName(m_shelves[indexPath.section]->footerTitle());
    return cell;
}

uikit::UICollectionItemDescription VelaProStorePageViewController::collectionViewDescriptionOfItemAt(uikit::UICollectionView&,
                                                                                                     uikit::IndexPath indexPath) {
    const VelaProStorePageShelf& shelf = *m_shelves[indexPath.section];
    return {"store.shelf." + std::string(shelf.className()), shelf.accessibilityName(), !shelf.footerTitle().empty()};
}

std::vector<uikit::UIImage> VelaProStorePageViewController::collectionViewImagesForItemAt(uikit::UICollectionView&,
                                                                                          uikit::IndexPath indexPath) {
    return m_shelves[indexPath.section]->images();
}

std::shared_ptr<uikit::UICollectionReusableView> VelaProStorePageViewController::collectionViewViewForSupplementaryElementOfKind(
    uikit::UICollectionView& collectionView, uikit::UICollectionElementKind kind, uikit::IndexPath indexPath) {
    const auto footer = collectionView.dequeueReusableSupplementaryView<FooterView>(kind, indexPath);
    VelaProStorePageShelf& shelf = *m_shelves[indexPath.section];
    footer->setFooterTitle(shelf.footerTitle());
    footer->setSubtitle(shelf.footerSubTitle());
    return footer;
}

std::optional<geometry::Size>
VelaProStorePageViewController::collectionViewLayoutSizeForItemAt(uikit::UICollectionView& collectionView,
                                                                  uikit::UICollectionViewFlowLayout&, uikit::IndexPath indexPath) {
    constexpr double asHighAsThePage = std::numeric_limits<double>::max();
    const geometry::Size page = collectionView.frame().size;
    const VelaProStorePageShelf& shelf = *m_shelves[indexPath.section];
    const double height = shelf.preferredShelfHeight();
    if (height == asHighAsThePage) return page;
    return geometry::Size{page.width, height + shelf.heightAddedForTexts(page.width, traitCollection())};
}

std::optional<geometry::PhysicalInsets>
VelaProStorePageViewController::collectionViewLayoutInsetForSectionAt(uikit::UICollectionView&, uikit::UICollectionViewFlowLayout&,
                                                                      std::size_t section) {
    return m_shelves[section]->preferredSectionInset();
}

std::optional<geometry::Size> VelaProStorePageViewController::collectionViewLayoutReferenceSizeForHeaderInSection(
    uikit::UICollectionView&, uikit::UICollectionViewFlowLayout&, std::size_t) {
    return geometry::Size{};
}

std::optional<geometry::Size> VelaProStorePageViewController::collectionViewLayoutReferenceSizeForFooterInSection(
    uikit::UICollectionView&, uikit::UICollectionViewFlowLayout&, std::size_t) {
    return geometry::Size{};
}

void VelaProStorePageViewController::collectionViewWillDisplayForItemAt(uikit::UICollectionView&, uikit::UICollectionViewCell& cell,
                                                                        uikit::IndexPath indexPath) {
    auto* storeCell = dynamic_cast<VelaProStoreCell*>(&cell);
    const auto controller = storeCell ? m_shelves[indexPath.section]->viewController() : nullptr;
    if (controller) storeCell->embed(controller, *this);
}

void VelaProStorePageViewController::collectionViewDidEndDisplayingForItemAt(uikit::UICollectionView&,
                                                                             uikit::UICollectionViewCell& cell, uikit::IndexPath) {
    if (auto* storeCell = dynamic_cast<VelaProStoreCell*>(&cell)) storeCell->detach();
}

} // namespace proupsells

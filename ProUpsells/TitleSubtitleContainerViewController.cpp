#include "ProUpsells/TitleSubtitleContainerViewController.hpp"

#include <algorithm>

#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const VelaProStorePageShelf& shelf)
    : m_shelf(shelf.weak_from_this()), m_labels(emptyLabels()) {
    show(shelf);
}

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const foundation::Coder&) : m_labels({}) {
    stopAtUnimplementedInitializer("init(coder:)", "TitleSubtitleContainerViewController");
}

TitleSubtitleLabels TitleSubtitleContainerViewController::emptyLabels() {
    return TitleSubtitleLabels(velauikit::velaDefaultFont(velauikit::FontOption::bold, 22));
}

double TitleSubtitleContainerViewController::heightFor(const VelaProStorePageShelf& shelf, double width,
                                                       const uikit::UITraitCollection& traits) {
    if (traits.preferredContentSizeCategory <= graphics::ContentSizeCategory::large) return usualHeight;
    return std::max(usualHeight, labelsFor(shelf).heightIn(width, traits));
}

// Labels of their own, to measure what those in the view would be without changing these.
TitleSubtitleLabels TitleSubtitleContainerViewController::labelsFor(const VelaProStorePageShelf& shelf) {
    TitleSubtitleLabels labels = emptyLabels();
    labels.setTitle(shelf.footerTitle());
    labels.setSubtitle(shelf.footerSubTitle());
    return labels;
}

void TitleSubtitleContainerViewController::setRoomForTexts(double room) {
    m_roomForTexts = room;
    if (isViewLoaded()) view()->setNeedsLayout();
}

void TitleSubtitleContainerViewController::show(const VelaProStorePageShelf& shelf) {
    setSubtitleText(shelf.footerSubTitle());
    setTitleText(shelf.footerTitle());
}

void TitleSubtitleContainerViewController::applyTexts() {
    if (const auto shelf = m_shelf.lock()) show(*shelf);
}

void TitleSubtitleContainerViewController::viewDidLoad() {
    m_labels.addTo(*view());
    m_height = view()->heightAnchor().constraintEqualToConstant(usualHeight);
    m_height->setActive(true);
    view()->setContentHuggingPriority(uikit::layoutPriorityHigh, uikit::Axis::vertical);
}

void TitleSubtitleContainerViewController::viewDidLayoutSubviews() {
    const auto shelf = m_shelf.lock();
    if (!shelf) return;
    const double width = view()->bounds().width(), height = heightFor(*shelf, width, traitCollection());
    m_height->setConstant(height);
    const bool isHigher = height > usualHeight;
    m_labels.setScale(isHigher || !m_roomForTexts ? 1 : labelsFor(*shelf).scaleInto(*m_roomForTexts, width, traitCollection()));
}

} // namespace proupsells

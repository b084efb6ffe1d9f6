#include "ProUpsells/TitleSubtitleContainerViewController.hpp"

#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const VelaProStorePageShelf& shelf)
    : m_shelf(shelf.weak_from_this()), m_labels(velauikit::velaDefaultFont(velauikit::FontOption::bold, 22)) {
    show(shelf);
}

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const foundation::Coder&) : m_labels({}) {
    stopAtUnimplementedInitializer("init(coder:)", "TitleSubtitleContainerViewController");
}

void TitleSubtitleContainerViewController::show(const VelaProStorePageShelf& shelf) {
    setSubtitleText(shelf.footerSubTitle());
    setTitleText(shelf.footerTitle());
}

void TitleSubtitleContainerViewController::applyTexts() {
    if (const auto shelf = m_shelf.lock()) show(*shelf);
}

void TitleSubtitleContainerViewController::viewDidLoad() {
    UIViewController::viewDidLoad();
    m_labels.addTo(*view());
    view()->heightAnchor().constraintEqualToConstant(103)->setActive(true);
    view()->setContentHuggingPriority(uikit::layoutPriorityHigh, uikit::Axis::vertical);
}

} // namespace proupsells

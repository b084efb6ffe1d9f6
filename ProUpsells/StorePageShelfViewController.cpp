#include "ProUpsells/StorePageShelfViewController.hpp"

#include <algorithm>

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

namespace {

constexpr double tickInterval_s = 0.1;
constexpr double step = 5;

} // namespace

// --- Making ---

struct StorePageShelfViewController::Maker : StorePageShelfViewController {};

StorePageShelfViewController::StorePageShelfViewController() : m_scrollView(std::make_shared<uikit::UIScrollView>()) {
    m_scrollView->setShowsHorizontalScrollIndicator(false);
    m_scrollView->setShowsVerticalScrollIndicator(false);
}

StorePageShelfViewController::~StorePageShelfViewController() { stopAutoScrollTimer(); }

std::shared_ptr<StorePageShelfViewController> StorePageShelfViewController::create(const uikit::UIImage& image) {
    const auto strip = std::make_shared<Maker>();
    if (!image) return strip;
    const auto imageView = std::make_shared<uikit::UIImageView>(image);
    imageView->setContentMode(uikit::UIImageView::ContentMode::aspectFit);
    strip->embedCenteredContent(imageView);
    return strip;
}

std::shared_ptr<StorePageShelfViewController>
StorePageShelfViewController::createWithCustomView(const std::shared_ptr<uikit::UIView>& view) {
    const auto strip = std::make_shared<Maker>();
    strip->embedCenteredContent(view);
    return strip;
}

std::shared_ptr<StorePageShelfViewController>
StorePageShelfViewController::createWithPaddedCustomView(const std::shared_ptr<uikit::UIView>& view) {
    const auto strip = std::make_shared<Maker>();
    strip->embedPaddedContent(view);
    return strip;
}

std::shared_ptr<StorePageShelfViewController> StorePageShelfViewController::create(const RepeatableView& repeatingView,
                                                                                   double spacing) {
    constexpr int tileCount = 21;
    const auto strip = std::make_shared<Maker>();
    const auto row = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    for (int i = 0; i < tileCount; ++i) row->addArrangedSubview(repeatingView.makeView());
    strip->embedPaddedContent(row);
    row->setSpacing(spacing);
    return strip;
}

std::shared_ptr<StorePageShelfViewController> StorePageShelfViewController::create(const foundation::Coder&) {
    stopAtUnimplementedInitializer("init(coder:)", "StorePageShelfViewController");
}

// --- Layout ---

void StorePageShelfViewController::viewDidLoad() {
    view()->addSubview(m_scrollView);
    m_scrollView->fillSuperview();
    view()->setContentHuggingPriority(uikit::layoutPriorityHigh, uikit::Axis::vertical);
}

// What has a natural width keeps it, as that counts for more than the leading edge; what has none fills the strip.
void StorePageShelfViewController::embedCenteredContent(const std::shared_ptr<uikit::UIView>& content) {
    content->setTranslatesAutoresizingMaskIntoConstraints(false);
    m_scrollView->addSubview(content);
    uikit::NSLayoutConstraint::activate({
        content->leadingAnchor().constraintEqualTo(m_scrollView->leadingAnchor())->withPriority(uikit::layoutPriorityLow),
        content->trailingAnchor().constraintEqualTo(m_scrollView->trailingAnchor()),
        content->centerXAnchor().constraintEqualTo(m_scrollView->centerXAnchor()),
        content->topAnchor().constraintEqualTo(m_scrollView->topAnchor()),
        content->bottomAnchor().constraintEqualTo(m_scrollView->bottomAnchor()),
        content->heightAnchor().constraintEqualTo(m_scrollView->heightAnchor()),
    });
    m_scrollView->setContentSize(content->intrinsicContentSize());
}

void StorePageShelfViewController::embedPaddedContent(const std::shared_ptr<uikit::UIView>& content) {
    constexpr double padding = 16;
    content->setTranslatesAutoresizingMaskIntoConstraints(false);
    m_scrollView->addSubview(content);
    uikit::NSLayoutConstraint::activate({
        content->leadingAnchor().constraintEqualTo(m_scrollView->leadingAnchor(), padding),
        content->trailingAnchor().constraintEqualTo(m_scrollView->trailingAnchor(), -padding),
        content->topAnchor().constraintEqualTo(m_scrollView->topAnchor()),
        content->bottomAnchor().constraintEqualTo(m_scrollView->bottomAnchor()),
        content->heightAnchor().constraintEqualTo(m_scrollView->heightAnchor()),
    });
}

// --- Drifting ---

void StorePageShelfViewController::setScrollDirection(ScrollDirection direction) {
    m_scrollDirection = direction;
    resetScrollOffset();
}

// A right-drifting strip starts past its last page (the full content width, not clamped) and works back towards 0.
void StorePageShelfViewController::resetScrollOffset() {
    m_scrollView->layoutIfNeeded();
    switch (m_scrollDirection) {
    case ScrollDirection::left: m_scrollView->setContentOffset({0, 0}); break;
    case ScrollDirection::right: m_scrollView->setContentOffset({m_scrollView->contentSize().width, 0}); break;
    case ScrollDirection::none: break;
    }
}

void StorePageShelfViewController::viewWillAppear(bool /*animated*/) {
    m_isShown = true;
    startAutoScrollTimer();
}

void StorePageShelfViewController::viewDidDisappear(bool /*animated*/) {
    m_isShown = false;
    stopAutoScrollTimer();
}

void StorePageShelfViewController::traitCollectionDidChange(const uikit::UITraitCollection&) { followSight(); }

void StorePageShelfViewController::windowVisibilityDidChange() { followSight(); }

void StorePageShelfViewController::followSight() {
    if (traitCollection().reduceMotion || isInHiddenWindow())
        stopAutoScrollTimer();
    else if (m_isShown)
        startAutoScrollTimer();
}

bool StorePageShelfViewController::isInHiddenWindow() const {
    const uikit::UIView* const shown = viewIfLoaded();
    return shown && shown->window() && !shown->window()->isSeen();
}

// A strip that cannot work its way back to its content shows the end of it.
void StorePageShelfViewController::viewDidLayoutSubviews() {
    if (m_scrollDirection != ScrollDirection::right || !traitCollection().reduceMotion) return;
    const double end = std::max(0.0, m_scrollView->contentSize().width - view()->bounds().width());
    if (m_scrollView->contentOffset().x > end) m_scrollView->setContentOffset({end, m_scrollView->contentOffset().y});
}

// One that has not come to its content yet shows nothing that could be held.
bool StorePageShelfViewController::isAtItsContent() const {
    return m_scrollView->contentOffset().x <= std::max(0.0, m_scrollView->contentSize().width - m_scrollView->bounds().width());
}

void StorePageShelfViewController::startAutoScrollTimer() {
    const bool mayDrift = m_scrollDirection != ScrollDirection::none && !traitCollection().reduceMotion && !isInHiddenWindow();
    if (!mayDrift || isAutoScrolling()) return;
    m_autoScrollTimer = runloop::MainRunLoop::main().scheduleRepeating(tickInterval_s, [weakSelf = uikit::weakReference(*this)] {
        if (const auto self = weakSelf.lock()) self->autoScroll();
    });
}

void StorePageShelfViewController::stopAutoScrollTimer() {
    if (m_autoScrollTimer) m_autoScrollTimer->invalidate();
    m_autoScrollTimer = nullptr;
}

void StorePageShelfViewController::autoScroll() {
    if (m_scrollView->isTracking() || m_scrollView->isDragging() || m_scrollView->isDecelerating()) return;
    if (isAtItsContent() && m_scrollView->isAttended()) return;
    constexpr double tolerance = 1e-6; // an end that is met exactly is met, whatever the rounding of the steps before
    const geometry::Point offset = m_scrollView->contentOffset();
    double x = offset.x;
    switch (m_scrollDirection) {
    case ScrollDirection::left:
        x += step;
        if (x > m_scrollView->contentSize().width - view()->bounds().width() + tolerance) return;
        break;
    case ScrollDirection::right:
        x -= step;
        if (x < -tolerance) return;
        break;
    case ScrollDirection::none: return;
    }
    // Even steps that end when the next one begins look like one even movement.
    m_scrollView->setContentOffset({x, offset.y}, motion::Animation{motion::TimingCurve::linear(), tickInterval_s, 0});
}

} // namespace proupsells

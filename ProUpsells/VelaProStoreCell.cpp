#include "ProUpsells/VelaProStoreCell.hpp"

#include <algorithm>
#include <utility>

#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells {

namespace {

double scrollableWidth(const uikit::UIScrollView& strip) { return strip.contentSize().width - strip.bounds().width(); }

void addStrips(const uikit::UIView& view, std::vector<uikit::UIScrollView*>& strips) {
    for (const auto& subview : view.subviews()) {
        auto* const strip = dynamic_cast<uikit::UIScrollView*>(subview.get());
        if (strip && scrollableWidth(*strip) > 0)
            strips.push_back(strip);
        else
            addStrips(*subview, strips);
    }
}

// Those inside that can be scrolled sideways.
std::vector<uikit::UIScrollView*> strips(const uikit::UIView& view) {
    std::vector<uikit::UIScrollView*> strips;
    addStrips(view, strips);
    return strips;
}

// Nearly a page onwards (1) or back (-1), as far as there is something.
void turn(uikit::UIScrollView& strip, int step) {
    constexpr double shareOfPage = 0.8;
    const double onwards = shareOfPage * strip.bounds().width() * (strip.isRightToLeft() ? -step : step);
    const double x = std::clamp(strip.contentOffset().x + onwards, 0.0, scrollableWidth(strip));
    strip.setContentOffset({x, strip.contentOffset().y}, motion::Animation::standard());
}

} // namespace

void VelaProStoreCell::embed(const std::shared_ptr<uikit::UIViewController>& controller, uikit::UIViewController& parent) {
    parent.addChild(controller);
    controller->didMoveToParent(&parent);
    controller->view()->setFrame(contentView()->bounds());
    contentView()->addSubview(controller->view());
    m_viewController = controller;
}

void VelaProStoreCell::detach() {
    const auto controller = m_viewController.lock();
    m_viewController.reset();
    if (!controller) return;
    controller->view()->removeFromSuperview();
    controller->willMoveToParent(nullptr);
    controller->removeFromParent();
}

void VelaProStoreCell::setSpokenName(std::string name) {
    accessibilitySpoken.role = name.empty() ? accessibility::Role::unstated : accessibility::Role::group;
    accessibilitySpoken.takesFocus = !name.empty();
    accessibilitySpoken.name = std::move(name);
}

void VelaProStoreCell::describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const {
    UICollectionViewCell::describe(node, state);
    if (strips(*this).empty()) return;
    node.adjust = [cell = uikit::weakReference(const_cast<VelaProStoreCell&>(*this))](int step) {
        const auto held = cell.lock();
        if (!held || !held->window()) return;
        for (uikit::UIScrollView* strip : strips(*held)) turn(*strip, step);
    };
}

void VelaProStoreCell::layoutSubviews() {
    if (const auto controller = m_viewController.lock()) controller->view()->setFrame(contentView()->bounds());
}

} // namespace proupsells

#include "ProUpsells/LabelHeaderView.hpp"

#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"

namespace proupsells {

LabelHeaderView::LabelHeaderView(const geometry::Rect& frame) : StoreHeaderView(frame, headline, 24) {
    uikit::NSLayoutConstraint::activate({
        titleLabel()->topAnchor().constraintEqualTo(topAnchor()),
        titleLabel()->centerXAnchor().constraintEqualTo(centerXAnchor()),
        titleLabel()->leadingAnchor().constraintEqualTo(leadingAnchor(), 30),
    });
}

} // namespace proupsells

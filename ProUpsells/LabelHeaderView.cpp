#include "ProUpsells/LabelHeaderView.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"

namespace proupsells {

LabelHeaderView::LabelHeaderView(const geometry::Rect& frame)
    : StoreHeaderView(frame, foundation::localizable("All the templates. All the fonts. Graphics galore."), 24) {
    uikit::NSLayoutConstraint::activate({
        titleLabel()->topAnchor().constraintEqualTo(topAnchor()),
        titleLabel()->centerXAnchor().constraintEqualTo(centerXAnchor()),
        titleLabel()->leadingAnchor().constraintEqualTo(leadingAnchor(), 30),
    });
}

} // namespace proupsells

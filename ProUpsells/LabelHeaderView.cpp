#include "ProUpsells/LabelHeaderView.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/VelaUIKit/Colors.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

LabelHeaderView::LabelHeaderView(const geometry::Rect& frame) : UIView(frame), m_titleLabel(makeCenteredLabel()) {
    m_titleLabel->setAttributedText(centeredText(
        foundation::localizedString("All the templates. All the fonts. Graphics galore."),
        {.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, 24), .color = velauikit::dynamicColor(9)}, 8));
    addSubview(m_titleLabel);
    uikit::NSLayoutConstraint::activate({
        m_titleLabel->topAnchor().constraintEqualTo(topAnchor()),
        m_titleLabel->centerXAnchor().constraintEqualTo(centerXAnchor()),
        m_titleLabel->leadingAnchor().constraintEqualTo(leadingAnchor(), 30),
    });
}

LabelHeaderView::LabelHeaderView(const foundation::Coder&) { stopAtInitializerFromArchive(); }

} // namespace proupsells

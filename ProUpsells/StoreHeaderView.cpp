#include "ProUpsells/StoreHeaderView.hpp"

#include <utility>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/CenteredText.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

StoreHeaderView::StoreHeaderView(const geometry::Rect& frame, std::string headline, double fontSize)
    : UIView(frame), m_headline(std::move(headline)), m_fontSize(fontSize), m_titleLabel(makeCenteredLabel()) {
    m_titleLabel->setLargestTextSize(lumokit::LargestSize::headline);
    m_titleLabel->setAvoidsShortLastLine(true);
    applyTexts();
    m_titleLabel->accessibilitySpoken.role = accessibility::Role::heading;
    addSubview(m_titleLabel);
}

StoreHeaderView::StoreHeaderView(const foundation::Coder&) { stopAtInitializerFromArchive(); }

void StoreHeaderView::applyTexts() {
    m_titleLabel->setAttributedText(centeredText(
        foundation::Bundle::main().localizedString(m_headline),
        {.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, m_fontSize), .color = velauikit::dynamicColor(9)}, 8));
}

} // namespace proupsells

// A headline and an explanation as a section's footer.
#pragma once

#include <memory>
#include <string>

#include "Platform/UIKit/Collection/UICollectionViewCell.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

class FooterView : public uikit::UICollectionReusableView {
public:
    FooterView();
    std::string_view typeName() const override { return "FooterView"; }

    const std::string& footerTitle() const { return m_footerTitle; }
    void setFooterTitle(std::string text);
    const std::string& subtitle() const { return m_subtitle; }
    void setSubtitle(std::string text);
    const std::shared_ptr<uikit::UILabel>& footerTitleLabel() const { return m_footerTitleLabel; }
    const std::shared_ptr<uikit::UILabel>& subtitleLabel() const { return m_subtitleLabel; }

private:
    std::string m_footerTitle;
    std::shared_ptr<uikit::UILabel> m_footerTitleLabel;
    std::string m_subtitle;
    std::shared_ptr<uikit::UILabel> m_subtitleLabel;
};

} // namespace proupsells

// A headline and an explanation as a section's footer.
#pragma once

#include <string>
#include <utility>

#include "Platform/UIKit/Collection/UICollectionViewCell.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"

namespace proupsells {

class FooterView : public uikit::UICollectionReusableView {
public:
    FooterView();
    std::string_view typeName() const override { return "FooterView"; }

    const std::string& footerTitle() const { return m_labels.title(); }
    void setFooterTitle(std::string text) { m_labels.setTitle(std::move(text)); }
    const std::string& subtitle() const { return m_labels.subtitle(); }
    void setSubtitle(std::string text) { m_labels.setSubtitle(std::move(text)); }
    const std::shared_ptr<uikit::UILabel>& footerTitleLabel() const { return m_labels.titleLabel(); }
    const std::shared_ptr<uikit::UILabel>& subtitleLabel() const { return m_labels.subtitleLabel(); }

private:
    TitleSubtitleLabels m_labels;
};

} // namespace proupsells

// The store page's plan button: a title, and an arrow that points onwards.
#pragma once

#include <memory>

#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

// Keeps its title inside its edges: one that is too long is set smaller, and then cut.
class PlanButton : public uikit::UIButton {
public:
    PlanButton();

    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }
    // Reads the title anew, in the language of the moment.
    void applyTexts();
    void languageDidChange() override { applyTexts(); }
    void layoutSubviews() override;

private:
    void layOut(const std::shared_ptr<uikit::UIView>& arrow);

    std::shared_ptr<uikit::UILabel> m_titleLabel;
};

} // namespace proupsells

// The page's header: the product's logo over a headline.
#pragma once

#include <memory>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

class VelaProHeaderView : public uikit::UIView {
public:
    explicit VelaProHeaderView(const geometry::Rect& frame);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] explicit VelaProHeaderView(const foundation::Coder& coder);
    std::string_view typeName() const override { return "VelaProHeaderView"; }

    const std::shared_ptr<uikit::UIImageView>& proLogoImageView() const { return m_proLogoImageView; }
    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }

private:
    void layOut();

    std::shared_ptr<uikit::UIImageView> m_proLogoImageView;
    std::shared_ptr<uikit::UILabel> m_titleLabel;
};

// The width of a picture whose height is 1; absent where the size has none.
std::optional<double> aspectRatio(geometry::Size size);

} // namespace proupsells

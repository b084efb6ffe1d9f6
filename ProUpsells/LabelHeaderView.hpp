// Another header for the page: a headline alone.
#pragma once

#include <memory>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

class LabelHeaderView : public uikit::UIView {
public:
    explicit LabelHeaderView(const geometry::Rect& frame);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] explicit LabelHeaderView(const foundation::Coder& coder);
    std::string_view typeName() const override { return "LabelHeaderView"; }

    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }

private:
    std::shared_ptr<uikit::UILabel> m_titleLabel;
};

} // namespace proupsells

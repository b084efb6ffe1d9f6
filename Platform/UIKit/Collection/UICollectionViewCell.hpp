// The views that a collection shows its items in, and uses again.
#pragma once

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

class UICollectionReusableView : public UIView {
public:
    std::string_view typeName() const override { return "UICollectionReusableView"; }

    // Called before the view is handed out once more.
    virtual void prepareForReuse() {}
};

class UICollectionViewCell : public UICollectionReusableView {
public:
    UICollectionViewCell();
    std::string_view typeName() const override { return "UICollectionViewCell"; }

    // Fills the cell; what the cell shows belongs in it.
    const std::shared_ptr<UIView>& contentView() const { return m_contentView; }

private:
    std::shared_ptr<UIView> m_contentView;
};

} // namespace proupsells::uikit

#include "Platform/UIKit/Collection/UICollectionViewCell.hpp"

namespace proupsells::uikit {

UICollectionViewCell::UICollectionViewCell() : m_contentView(std::make_shared<UIView>()) {
    addSubview(m_contentView);
    m_contentView->fillSuperview();
}

} // namespace proupsells::uikit

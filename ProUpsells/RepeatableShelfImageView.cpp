#include "ProUpsells/RepeatableShelfImageView.hpp"

#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"

namespace proupsells {

std::shared_ptr<uikit::UIView> RepeatableShelfImageView::makeView() const {
    const auto tile = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    for (const uikit::UIImage& image : m_images) {
        const auto imageView = std::make_shared<uikit::UIImageView>(image);
        imageView->setContentMode(uikit::UIImageView::ContentMode::aspectFit);
        tile->addArrangedSubview(imageView);
    }
    return tile;
}

} // namespace proupsells

// Tiles of images beside each other.
#pragma once

#include <utility>
#include <vector>

#include "ProUpsells/RepeatableView.hpp"

namespace proupsells {

class RepeatableShelfImageView : public RepeatableView {
public:
    explicit RepeatableShelfImageView(std::vector<uikit::UIImage> images) : m_images(std::move(images)) {}

    const std::vector<uikit::UIImage>& images() const { return m_images; }
    std::shared_ptr<uikit::UIView> makeView() const override;

private:
    std::vector<uikit::UIImage> m_images;
};

} // namespace proupsells

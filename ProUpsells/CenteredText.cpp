#include "ProUpsells/CenteredText.hpp"

#include <utility>

namespace proupsells {

std::shared_ptr<uikit::UILabel> makeCenteredLabel() {
    const auto label = std::make_shared<uikit::UILabel>();
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    label->setTextAlignment(graphics::TextAlignment::center);
    label->setNumberOfLines(0);
    return label;
}

graphics::AttributedString centeredText(std::string text, const graphics::TextAttributes& attributes, double lineSpacing) {
    graphics::AttributedString result(std::move(text), attributes);
    result.paragraphStyle = graphics::ParagraphStyle{lineSpacing, graphics::TextAlignment::center};
    return result;
}

} // namespace proupsells

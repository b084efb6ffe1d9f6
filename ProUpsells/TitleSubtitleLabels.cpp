#include "ProUpsells/TitleSubtitleLabels.hpp"

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

std::vector<std::shared_ptr<uikit::NSLayoutConstraint>> titleSubtitleConstraints(uikit::UIView& container, uikit::UILabel& title,
                                                                                 uikit::UILabel& subtitle) {
    return {
        title.topAnchor().constraintEqualTo(container.topAnchor()),
        title.centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        title.leadingAnchor().constraintEqualTo(container.leadingAnchor(), 25),
        subtitle.topAnchor().constraintEqualTo(title.bottomAnchor(), 16),
        subtitle.centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        subtitle.widthAnchor().constraintLessThanOrEqualToConstant(300),
        subtitle.leadingAnchor().constraintEqualTo(container.leadingAnchor(), 19)->withPriority(uikit::layoutPriorityLow),
    };
}

} // namespace proupsells

#include "ProUpsells/TitleSubtitleContainerViewController.hpp"

#include <utility>

#include "Platform/VelaUIKit/Colors.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

namespace {

constexpr double lineSpacing = 9;

const graphics::TextAttributes& titleAttributes() {
    static const graphics::TextAttributes attributes{.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, 22),
                                                     .color = velauikit::dynamicColor(9)};
    return attributes;
}

const graphics::TextAttributes& subtitleAttributes() {
    static const graphics::TextAttributes attributes{
        .font = velauikit::velaDefaultFont(velauikit::FontOption::regular, 16), .color = velauikit::dynamicColor(10), .kern = 0.2};
    return attributes;
}

} // namespace

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const VelaProStorePageShelf& shelf)
    : m_titleLabel(makeCenteredLabel()), m_subtitleLabel(makeCenteredLabel()) {
    setSubtitleText(shelf.footerSubTitle());
    setTitleText(shelf.footerTitle());
}

TitleSubtitleContainerViewController::TitleSubtitleContainerViewController(const foundation::Coder&) {
    stopAtUnimplementedInitializer("init(coder:)", "TitleSubtitleContainerViewController");
}

void TitleSubtitleContainerViewController::setTitleText(std::string text) {
    m_titleText = std::move(text);
    m_titleLabel->setAttributedText(centeredText(m_titleText, titleAttributes(), lineSpacing));
}

void TitleSubtitleContainerViewController::setSubtitleText(std::string text) {
    m_subtitleText = std::move(text);
    m_subtitleLabel->setAttributedText(centeredText(m_subtitleText, subtitleAttributes(), lineSpacing));
}

void TitleSubtitleContainerViewController::viewDidLoad() {
    UIViewController::viewDidLoad();
    uikit::UIView& root = *view();
    root.addSubview(m_titleLabel);
    root.addSubview(m_subtitleLabel);
    auto constraints = titleSubtitleConstraints(root, *m_titleLabel, *m_subtitleLabel);
    constraints.push_back(root.heightAnchor().constraintEqualToConstant(103));
    uikit::NSLayoutConstraint::activate(constraints);
    root.setContentHuggingPriority(uikit::layoutPriorityHigh, uikit::Axis::vertical);
}

} // namespace proupsells

// How the store page's texts are set: their faces, the room between their lines, and where their lines stand.
#include "Platform/UIKit/Views/UILabel.hpp"
#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/CenteredText.hpp"
#include "ProUpsells/FooterView.hpp"
#include "ProUpsells/LabelHeaderView.hpp"
#include "ProUpsells/PlanButton.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VelaProHeaderView.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

namespace {

class StoreParagraph : public StoreTest {};

struct Setting {
    int weightOption;
    double size;
    std::string color;
    double kern;
    double lineSpacing;
    graphics::TextAlignment alignment = graphics::TextAlignment::center;

    bool operator==(const Setting&) const = default;
};

void PrintTo(const Setting& setting, std::ostream* stream) {
    *stream << setting.size << " points in option " << setting.weightOption << ", " << setting.color << ", kern " << setting.kern
            << ", lines " << setting.lineSpacing << " apart, alignment " << int(setting.alignment);
}

Setting settingOf(const uikit::UILabel& label) {
    const graphics::AttributedString& text = label.attributedText();
    EXPECT_EQ(text.runs().size(), 1u);
    const graphics::TextAttributes& attributes = text.runs().at(0).attributes;
    const graphics::ParagraphStyle paragraph = text.paragraphStyle.value();
    return {attributes.font.weightOption.value_or(-1),
            attributes.font.size,
            std::string(attributes.color.name),
            attributes.kern,
            paragraph.lineSpacing,
            paragraph.alignment};
}

} // namespace

TEST_F(StoreParagraph, OfAHeadlineAndItsExplanation) {
    const TitleSubtitleContainerViewController texts{BrandAssetsShelf()};

    EXPECT_EQ(settingOf(*texts.titleLabel()), (Setting{2, 22, "dynamicColor.9", 0, 9}));
    EXPECT_EQ(settingOf(*texts.subtitleLabel()), (Setting{0, 16, "dynamicColor.10", 0.2, 9}));
}

TEST_F(StoreParagraph, OfAHeadlineThatIsSetAnew) {
    TitleSubtitleContainerViewController texts{BrandAssetsShelf()};

    texts.setTitleText("Other");
    texts.setSubtitleText("Another");

    EXPECT_EQ(texts.titleLabel()->text(), "Other");
    EXPECT_EQ(settingOf(*texts.titleLabel()), (Setting{2, 22, "dynamicColor.9", 0, 9}));
    EXPECT_EQ(texts.subtitleLabel()->text(), "Another");
    EXPECT_EQ(settingOf(*texts.subtitleLabel()), (Setting{0, 16, "dynamicColor.10", 0.2, 9}));
}

TEST_F(StoreParagraph, OfAFooter) {
    FooterView footer;
    footer.setFooterTitle("A headline");
    footer.setSubtitle("An explanation");

    EXPECT_EQ(settingOf(*footer.footerTitleLabel()), (Setting{1, 20, "dynamicColor.9", 0, 9}));
    EXPECT_EQ(settingOf(*footer.subtitleLabel()), (Setting{0, 16, "dynamicColor.10", 0.2, 9}));
}

TEST_F(StoreParagraph, OfTheHeaders) {
    const VelaProHeaderView header{geometry::Rect{}};
    const LabelHeaderView otherHeader{geometry::Rect{}};

    EXPECT_EQ(settingOf(*header.titleLabel()), (Setting{2, 26, "dynamicColor.9", 0, 8}));
    EXPECT_EQ(settingOf(*otherHeader.titleLabel()), (Setting{2, 24, "dynamicColor.9", 0, 8}));
}

TEST_F(StoreParagraph, OfThePlanButton) {
    const PlanButton button;

    EXPECT_EQ(settingOf(*button.titleLabel()), (Setting{2, 18, "dynamicColor.16", 2, 5}));
}

// A label's own alignment counts where a text has none.
TEST_F(StoreParagraph, StandsInTheMiddleOfItsLabelsToo) {
    const TitleSubtitleContainerViewController texts{BrandAssetsShelf()};
    const VelaProHeaderView header{geometry::Rect{}};

    for (const uikit::UILabel* label : {texts.titleLabel().get(), texts.subtitleLabel().get(), header.titleLabel().get()}) {
        EXPECT_EQ(label->textAlignment(), graphics::TextAlignment::center);
        EXPECT_EQ(label->numberOfLines(), 0);
    }
    EXPECT_EQ(makeCenteredLabel()->textAlignment(), graphics::TextAlignment::center);
}

} // namespace proupsells::tests

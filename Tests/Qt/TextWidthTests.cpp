// The widths of texts, against those that Qt finds with the same typefaces.
#include <gtest/gtest.h>

#include <QFont>
#include <QTextLayout>
#include <string>

#include "Backends/Raster/RasterTextShaper.hpp"

using namespace proupsells;

namespace {

constexpr double size = 17;

double ourWidth(const std::string& text, const std::string& language, int weight) {
    static rasterbackend::RasterTextShaper shaper;
    const auto& face = graphics::registerFontFace("Widths-" + std::to_string(weight), "Inter", weight);
    const graphics::StyledRun run{text, {.face = &face, .size = size}, 0};
    const auto shaped = shaper.shape({&run, 1}, language, geometry::LayoutDirection::leftToRight);
    double width = 0;
    for (const graphics::Cluster& cluster : shaped->clusters) width += cluster.advance;
    return width;
}

// Measured at a large size and without hinting, so that no pixel rounds it.
double widthOfQt(const std::string& text, const char* style, const char* family = "Inter") {
    constexpr double large = 1024;
    QFont font(QString::fromLatin1(family));
    font.setStyleName(QString::fromLatin1(style));
    font.setPixelSize(int(large));
    font.setHintingPreference(QFont::PreferNoHinting);
    QTextLayout layout(QString::fromStdString(text), font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(2 * large * double(text.size()));
    layout.endLayout();
    return line.naturalTextWidth() / large * size;
}

} // namespace

TEST(TextWidths, AreQtsInTheScriptsThatTravelAlong) {
    const std::pair<const char*, const char*> texts[] = {
        {"en", "Cancel within 7 days, and you won’t be charged ($8.33/month)"},
        {"de", "Jahresabo: 99,99 € pro Jahr, jederzeit kündbar"},
        {"vi", "Đăng ký hàng năm với giá ưu đãi"},
        {"ru", "Годовая подписка, отмена в любое время"},
        {"el", "Ετήσια συνδρομή, ακύρωση οποτεδήποτε"},
    };
    for (const auto& [language, text] : texts) {
        EXPECT_NEAR(ourWidth(text, language, 400), widthOfQt(text, "Regular"), 0.01) << text;
        EXPECT_NEAR(ourWidth(text, language, 700), widthOfQt(text, "Bold"), 0.01) << text;
    }
}

// Words of one font each: what stands between words may come from another one. Where the system would take another font than we ask
// it for, Qt is given ours.
TEST(TextWidths, AreQtsWithTheSystemsFonts) {
    struct Word {
        const char* language;
        const char* text;
        const char* family = "Inter";
    };
    const Word words[] = {
        {"ar", "اشتراك", "Noto Sans Arabic"},
        {"he", "מינוי", "Noto Sans Hebrew"},
        {"th", "สมัคร"},
        {"zh-Hans", "年度"},
        {"ja", "漢字"},
        {"ko", "연간"},
    };
    for (const Word& word : words)
        EXPECT_NEAR(ourWidth(word.text, word.language, 400), widthOfQt(word.text, "Regular", word.family), 0.01) << word.text;
}

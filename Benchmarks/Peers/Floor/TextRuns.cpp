#include "Floor/TextRuns.hpp"

namespace peers::floor {
namespace {

using enum TextRun::Style;

constexpr TextRun runs[] = {
    {"Endless premium templates,", 18, bold, "#ffffff", 10, 184},
    {"updated daily.", 18, bold, "#ffffff", 10, 205},
    {"Compare Plans: Free vs Pro", 16, regular, "#1a1a1a", 44, 294},
    {"Annually", 17, regular, "#1a1a1a", 30, 342},
    {"7 DAY FREE TRIAL", 11, bold, "#0a7f80", 109, 345},
    {"SAVE 45%", 10, bold, "#ffffff", 290, 317},
    {"$143.88", 18, struckOut, "#1a1a1a", 30, 372},
    {"$99.99", 18, bold, "#1a1a1a", 103, 372},
    {" per year", 16, regular, "#6b6b70", 158, 374},
    {"($8.33/month).", 16, regular, "#6b6b70", 30, 394},
    {"Monthly", 17, regular, "#1a1a1a", 30, 464},
    {"$14.99", 18, bold, "#1a1a1a", 30, 492},
    {" per month", 16, regular, "#6b6b70", 88, 494},
    {"Start Your Free Trial", 17, bold, "#ffffff", 107, 583},
    {"Cancel within 7 days, and you won’t be charged. Payment", 13, regular, "#6b6b70", 21, 634},
    {"will be made automatically after the trial ends.", 13, regular, "#6b6b70", 56, 649},
    {"Terms of Service", 14, bold, "#6b6b70", 16, 679},
    {"Privacy Policy", 14, bold, "#6b6b70", 133, 679},
    {"Restore Purchases", 14, bold, "#6b6b70", 232, 679},
};

} // namespace

std::span<const TextRun> paywallTexts() { return runs; }

QFont makeFont(int pixels, bool isBold) {
    QFont font("Liberation Sans");
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QFont TextRun::font() const {
    QFont made = makeFont(size * 2, style != regular);
    made.setStrikeOut(style == struckOut);
    return made;
}

} // namespace peers::floor

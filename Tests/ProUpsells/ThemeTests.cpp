// A brand of the host's own.
#include "ProUpsells/Theme.hpp"

#include <algorithm>
#include <set>
#include <sstream>
#include <thread>

#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Graphics/Typefaces.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/ThemePicture.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/ScreenDescription.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {
namespace {

using graphics::ColorScheme;
using graphics::rgb;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using TapEvent = UpsellViewModel::TapEvent;

enum class Shown { paywall, comparison, store };
constexpr Shown everyScreen[] = {Shown::paywall, Shown::comparison, Shown::store};
constexpr ColorScheme everyScheme[] = {ColorScheme::light, ColorScheme::dark};

Theme::Color inBoth(std::uint32_t hex) { return {rgb(hex), rgb(hex)}; }

constexpr graphics::RGBA green = rgb(0x33FF66), nearlyBlack = rgb(0x001100);

// Green on nearly black, whatever the appearance.
Theme terminal() {
    Theme theme;
    for (const std::string_view name : Theme::colorNames()) theme.colors[std::string(name)] = {green, green};
    for (const char* name :
         {"velaBackground", "velaSecondaryAppBackground", "velaLightText", "ContentColor.inverse", "DecorativeColor.tealBackground",
          "ValidationColor.neutralSubdued", "dynamicColor.2", "dynamicColor.16", "focusRingRim"})
        theme.colors[name] = {nearlyBlack, nearlyBlack};
    return theme;
}

class ThemeTest : public ::testing::Test {
protected:
    ~ThemeTest() override {
        window->setRootViewController(nullptr);
        setTheme({});
    }

    void open(Shown screen) {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        window->rootViewController()->present(entry, false);
        bed.settle();
        auto& paywall = dynamic_cast<UpsellViewController&>(*entry->children().front());
        if (screen == Shown::comparison) paywall.upsellViewModel()->tapEventOccurred.send({TapEvent::ComparePlans{}});
        if (screen == Shown::store) paywall.upsellViewModel()->tapEventOccurred.send({TapEvent::WhatIsPro{}});
        bed.runFor(1);
    }
    void setAppearance(ColorScheme scheme) {
        uikit::UITraitCollection traits = window->traits();
        traits.userInterfaceStyle = scheme;
        window->setTraits(traits);
        bed.settle();
    }
    const graphics::DisplayList& painted() {
        window->paint(list);
        return list;
    }
    bool paints(graphics::RGBA color) {
        const auto& commands = painted().commands;
        return std::any_of(commands.begin(), commands.end(),
                           [&](const graphics::Command& command) { return command.color == color; });
    }
    std::set<std::string> paintedFiles() {
        std::set<std::string> files;
        for (const graphics::ImageRef& image : painted().images) files.insert(image->file.filename().string());
        return files;
    }

    headless::TestBed bed;
    graphics::DisplayList list;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VelaProUpsellViewController> entry = VelaProUpsellViewController::create(
        {yearly("$99.99", {.introductoryPeriodLength = "1 week"}), monthly()},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home"}, Entitlement::velaPRO, true);
};

// Shadows are black, and what is no text or shape has no colour.
bool isPlain(graphics::RGBA color) { return color == rgb(0x000000) || color == rgb(0xFFFFFF); }

// A line for each command. Texts that were shaped anew count as the same.
std::string commandsOf(const graphics::DisplayList& list) {
    std::ostringstream stream;
    for (const graphics::Command& command : list.commands) {
        const geometry::Rect& frame = command.frame;
        const graphics::RGBA& color = command.color;
        stream << int(command.kind) << " [" << frame.minX() << ' ' << frame.minY() << ' ' << frame.width() << ' ' << frame.height()
               << "] " << int(color.red) << ' ' << int(color.green) << ' ' << int(color.blue) << ' ' << int(color.alpha);
        if (command.kind == graphics::CommandKind::image) stream << ' ' << list.images.at(std::size_t(command.resource))->file;
        stream << '\n';
    }
    return stream.str();
}

// --- Colours ---

class EveryColor : public ThemeTest, public ::testing::WithParamInterface<std::string_view> {};

// The value is one that no pair of colours minds: a shade off our own.
TEST_P(EveryColor, CanBeReplacedByItsName) {
    const graphics::Color color = velauikit::findDesignColor(GetParam())->color;
    const auto nearly = [](graphics::RGBA value) {
        value.blue = std::uint8_t(value.blue < 128 ? value.blue + 1 : value.blue - 1);
        return value;
    };
    Theme theme;
    theme.colors[std::string(GetParam())] = {nearly(color.light), nearly(color.dark)};

    ASSERT_TRUE(setTheme(theme));

    EXPECT_EQ(color.resolved(ColorScheme::light), nearly(color.light));
    EXPECT_EQ(color.resolved(ColorScheme::dark), nearly(color.dark));
}

INSTANTIATE_TEST_SUITE_P(Theme, EveryColor, ::testing::ValuesIn(Theme::colorNames()));

TEST_F(ThemeTest, LeavesNothingInOurColorsWhereItReplacesThemAll) {
    ASSERT_TRUE(setTheme(terminal()));

    for (const Shown screen : everyScreen) {
        for (const ColorScheme scheme : everyScheme) {
            open(screen);
            setAppearance(scheme);

            for (const velauikit::DesignColor& entry : velauikit::designColors())
                EXPECT_FALSE(paints(entry.color.own(scheme)) && !isPlain(entry.color.own(scheme))) << entry.color.name;
            EXPECT_TRUE(paints(green));
        }
    }
}

// The header has moved on to its second page, and stays there.
TEST_F(ThemeTest, IsFollowedByAScreenThatIsShown) {
    for (const Shown screen : everyScreen) {
        setTheme({});
        open(screen);
        bed.runFor(6);
        const std::string before = described(window->semanticTree());
        ASSERT_FALSE(paints(green));
        bool isAnnounced = false;
        window->setNeedsDisplayHandler([&] { isAnnounced = true; });

        setTheme(terminal());
        bed.settle();
        window->setNeedsDisplayHandler({});

        EXPECT_TRUE(isAnnounced);
        EXPECT_TRUE(paints(green));
        EXPECT_EQ(described(window->semanticTree()), before);
    }
}

TEST_F(ThemeTest, LeavesNoTraceWhenItGoes) {
    for (const Shown screen : everyScreen) {
        setTheme({});
        open(screen);
        const std::string before = commandsOf(painted()), tree = described(window->semanticTree());
        setTheme(terminal());
        bed.settle();
        ASSERT_NE(commandsOf(painted()), before);

        setTheme({});
        bed.settle();

        EXPECT_EQ(commandsOf(painted()), before);
        EXPECT_EQ(described(window->semanticTree()), tree);
    }
}

TEST_F(ThemeTest, MayHaveAColorForOneAppearanceOnly) {
    Theme theme;
    theme.colors["velaBackground"].light = rgb(0xFFFDF8);
    ASSERT_TRUE(setTheme(theme));
    open(Shown::comparison);

    EXPECT_TRUE(paints(rgb(0xFFFDF8)));
    setAppearance(ColorScheme::dark);
    EXPECT_TRUE(paints(rgb(0x0F1315)));
}

TEST_F(ThemeTest, LetsThePaywallFadeIntoItsPage) {
    open(Shown::paywall);
    const auto fade = [&] {
        const auto& commands = painted().commands;
        return *std::find_if(commands.begin(), commands.end(), [&](const graphics::Command& command) {
            return command.kind == graphics::CommandKind::image &&
                   list.images[std::size_t(command.resource)]->name == "TermsGradient";
        });
    };
    const geometry::Rect frame = fade().frame;
    Theme theme;
    theme.colors["velaBackground"].light = rgb(0xFFFDF8);

    ASSERT_TRUE(setTheme(theme));
    bed.settle();

    EXPECT_EQ(fade().color, rgb(0xFFFDF8));
    EXPECT_EQ(list.images[std::size_t(fade().resource)]->renderingMode, graphics::RenderingMode::tinted);
    EXPECT_EQ(fade().frame, frame);
}

TEST_F(ThemeTest, GivesTheStorePageTheColorsOfTheOtherScreens) {
    Theme theme;
    theme.colors["velaBackground"] = {rgb(0xFFFDF8), rgb(0x101010)};
    ASSERT_TRUE(setTheme(theme));
    open(Shown::store);

    EXPECT_TRUE(paints(rgb(0xFFFDF8)));
}

TEST_F(ThemeTest, MayGiveTheStorePageAColorOfItsOwn) {
    Theme theme;
    theme.colors["velaBackground"] = {rgb(0xFFFDF8), rgb(0x101010)};
    theme.colors["dynamicColor.2"] = {rgb(0xF8F8FF), rgb(0x111111)};
    ASSERT_TRUE(setTheme(theme));
    open(Shown::store);

    EXPECT_TRUE(paints(rgb(0xF8F8FF)));
    EXPECT_FALSE(paints(rgb(0xFFFDF8)));
}

// Whoever gives a screen another colour adds it to the table, and to the pairs.
TEST_F(ThemeTest, KnowsTheColorOfEveryText) {
    std::set<std::string> inPairs;
    for (const velauikit::ColorPair& pair : velauikit::colorPairs()) inPairs.emplace(pair.foreground.name);

    for (const Shown screen : everyScreen) {
        open(screen);
        visit(window->semanticTree(), [&](const accessibility::SemanticNode& node) {
            if (!node.text || node.text->text.empty()) return;
            EXPECT_THAT(inPairs, Contains(node.text->color)) << node.text->text;
        });
    }
}

TEST_F(ThemeTest, KnowsTheColorOfEveryShape) {
    for (const Shown screen : everyScreen) {
        open(screen);
        visit(window->semanticTree(), [&](const accessibility::SemanticNode& node) {
            if (!node.shape || node.shape->fill.empty() || node.shape->fill == "clear") return;
            EXPECT_THAT(Theme::colorNames(), Contains(node.shape->fill)) << node.type;
        });
    }
}

// --- What is refused ---

TEST_F(ThemeTest, IsRefusedWithALineForEachProblem) {
    Theme theme = terminal();
    theme.colors["velaBorder"] = inBoth(0x002200);
    open(Shown::paywall);
    const std::string before = commandsOf(painted());
    LogRecorder log;

    EXPECT_FALSE(setTheme(theme));
    bed.settle();

    EXPECT_EQ(log.messages(), theme.problems());
    EXPECT_THAT(log.messages(), Not(IsEmpty()));
    for (const auto& record : log.records()) EXPECT_EQ(record.function, "setTheme");
    EXPECT_EQ(commandsOf(painted()), before);
}

TEST_F(ThemeTest, StaysWhenTheNextOneIsRefused) {
    LogRecorder log;
    setTheme(terminal());
    Theme faint;
    faint.colors["velaBorder"] = inBoth(0xFFFFFF);

    EXPECT_FALSE(setTheme(faint));
    open(Shown::paywall);

    EXPECT_TRUE(paints(green));
}

TEST_F(ThemeTest, ShowsItsTextFamilyAlsoInTitlesUnlessTheseHaveOne) {
    setTheme({.families = {.text = "Lato"}});
    EXPECT_EQ(graphics::Typefaces::current().families,
              (std::map<std::string, std::string>{{"Inter", "Lato"}, {"Inter Display", "Lato"}}));

    setTheme({.families = {.text = "Lato", .display = "Lobster", .headings = "Fraunces"}});
    EXPECT_EQ(graphics::Typefaces::current().families,
              (std::map<std::string, std::string>{{"Inter", "Lato"}, {"Inter Display", "Lobster"}, {"Sora", "Fraunces"}}));
}

TEST_F(ThemeTest, IsSetOnTheMainThread) {
    EXPECT_DEATH(std::thread([] { setTheme({}); }).join(), "setTheme must be called");
}

// --- Pictures ---

class PicturesOfATheme : public ThemeTest {
protected:
    std::filesystem::path vector(const std::string& name, double width, double height) {
        return folder.write(name, "<svg width='" + std::to_string(width) + "' height='" + std::to_string(height) + "'/>");
    }
    std::filesystem::path likeOurs(const std::string& name, const ImageResource& ours) {
        return vector(name, image(ours)->size.width, image(ours)->size.height);
    }

    TemporaryFolder folder;
};

TEST_F(PicturesOfATheme, ArePaintedInThePlaceOfOurs) {
    open(Shown::paywall);
    const std::string before = described(window->semanticTree());
    Theme theme;
    theme.pictures["paywallHeaderA"] = {likeOurs("brand.svg", ImageResource::paywallHeaderA()), {}};
    theme.pictures["marwickFolioWithProBadge"] = {vector("logo.svg", 416, 52), {}};

    ASSERT_TRUE(setTheme(theme));
    bed.settle();

    EXPECT_THAT(paintedFiles(), Contains("brand.svg"));
    EXPECT_THAT(paintedFiles(), Contains("logo.svg"));
    EXPECT_EQ(described(window->semanticTree()), before);
}

TEST_F(PicturesOfATheme, LeaveOursWhereTheyAreMissingAndSayItAtOnce) {
    LogRecorder log;
    Theme theme;
    theme.pictures["paywallHeaderA"] = {folder.path() / "none.png", {}};
    theme.pictures["marwickFolioWithProBadge"] = {vector("logo.svg", 416, 52), {}};

    EXPECT_TRUE(setTheme(theme));
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("none.png cannot be read; \"paywallHeaderA\" stays as it is")));

    open(Shown::paywall);
    EXPECT_THAT(paintedFiles(), Contains("logo.svg"));
    EXPECT_THAT(paintedFiles(), Contains(::testing::StartsWith("paywallHeaderA")));
    EXPECT_EQ(log.messages().size(), 1u);
}

// In a program of its own, which has read none of the pictures yet.
TEST(PicturesOfAThemeDeathTest, AreReadAtOnce) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto setBrokenPicture = [] {
        headless::TestBed bed;
        Theme theme;
        theme.pictures["paywallHeaderA"] = {"none.png", {}};
        setTheme(theme);
        std::exit(int(bed.takeLogRecords().size()));
    };

    EXPECT_EXIT(setBrokenPicture(), ::testing::ExitedWithCode(1), "");
}

TEST_F(PicturesOfATheme, GoWithTheTheme) {
    Theme theme;
    theme.pictures["paywallHeaderA"] = {likeOurs("brand.svg", ImageResource::paywallHeaderA()), {}};
    setTheme(theme);
    open(Shown::paywall);
    ASSERT_THAT(paintedFiles(), Contains("brand.svg"));

    setTheme({});
    bed.settle();

    EXPECT_THAT(paintedFiles(), Not(Contains("brand.svg")));
}

TEST(ThemePictures, AreAllThatThereAre) {
    std::set<std::string> files;
    for (const foundation::Bundle* bundle :
         {&ThemePicture::find("paywallHeaderA")->bundle(), &ThemePicture::find("xmark")->bundle()})
        for (const auto& entry : std::filesystem::directory_iterator(bundle->folder() / "Images"))
            if (entry.path().stem().string().find('~') == std::string::npos) files.insert(entry.path().stem().string());

    std::set<std::string> names;
    for (const std::string_view name : Theme::pictureNames()) names.emplace(name);
    EXPECT_EQ(names, files);
}

} // namespace
} // namespace proupsells::tests

// The application around the module: what its window is told, what it leaves behind, and what it writes down.
#include "Tests/Support/NoDeathTests.hpp"

#include <gmock/gmock.h>

#include <sstream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Recording.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Tests/Recording/RecordedSession.hpp"

namespace proupsells::hostprogram {

namespace {

class SessionOfAHost : public ::testing::Test {
protected:
    std::unique_ptr<HostSession> sessionOn(const Device& device) {
        const Json json = Json::parse(tests::sampleOffersText());
        return std::make_unique<HostSession>(readOffers(JsonCursor{json, "offers"}), device, HostParts{},
                                             ffmpegbackend::Pace::exact, log);
    }
    static Theme brand() {
        const Json json{{"colours", {{"velaBackground", {{"light", "#FFF8EE"}}}}}};
        return readTheme(JsonCursor{json, "theme"}, {}, ThemePlace::insideAnotherFile);
    }
    static graphics::RGBA background() { return velauikit::velaBackground.resolved(graphics::ColorScheme::light); }
    std::vector<std::string> lines() const {
        std::vector<std::string> result;
        std::istringstream stream(events.str());
        for (std::string line; std::getline(stream, line);) result.push_back(line);
        return result;
    }

    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    std::ostringstream events;
    std::shared_ptr<EventLog> log = std::make_shared<EventLog>(events);
};

} // namespace

TEST_F(SessionOfAHost, TellsItsWindowOfTheWholeDevice) {
    const Device device{.size = {320, 600},
                        .scale = 3,
                        .appearance = graphics::ColorScheme::dark,
                        .locale = "de_AT",
                        .layoutDirection = DirectionChoice::rightToLeft,
                        .textSize = graphics::ContentSizeCategory::small,
                        .reduceMotion = true,
                        .safeArea = {20, 1, 34, 2},
                        .fonts = FontChoice::fixed};
    const auto session = sessionOn(device);

    const auto expectToldOf = [&](const Device& told, geometry::LayoutDirection direction) {
        const uikit::UITraitCollection& traits = session->window().traits();
        EXPECT_EQ(traits.userInterfaceStyle, told.appearance);
        EXPECT_EQ(traits.displayScale, told.scale);
        EXPECT_EQ(traits.preferredContentSizeCategory, told.textSize);
        EXPECT_EQ(traits.reduceMotion, told.reduceMotion);
        EXPECT_EQ(traits.layoutDirection, direction);
        EXPECT_EQ(session->window().frame().size, told.size);
        EXPECT_EQ(session->window().windowSafeArea(), told.safeArea);
        EXPECT_EQ(foundation::Locale::current().languageTag(), foundation::Locale{told.locale}.languageTag());
        EXPECT_EQ(session->device(), told);
    };
    expectToldOf(device, geometry::LayoutDirection::rightToLeft);

    const Device other{.size = {400, 700}, .scale = 1.5, .locale = "ar_EG", .layoutDirection = DirectionChoice::leftToRight};
    session->setDevice(other);
    expectToldOf(other, geometry::LayoutDirection::leftToRight);

    Device automatic = other;
    automatic.layoutDirection = DirectionChoice::automatic;
    session->setDevice(automatic);
    expectToldOf(automatic, geometry::LayoutDirection::rightToLeft);
}

TEST_F(SessionOfAHost, HasTheSizeThatItsWindowWasGiven) {
    const auto session = sessionOn({.fonts = FontChoice::fixed});

    session->noteSize({500, 400}, {1, 2, 3, 4});

    EXPECT_EQ(session->device().size, (geometry::Size{500, 400}));
    EXPECT_EQ(session->device().safeArea, (geometry::PhysicalInsets{1, 2, 3, 4}));
}

TEST_F(SessionOfAHost, ShowsItsThemeAndTakesItAway) {
    const graphics::RGBA own = background();
    {
        const auto session = sessionOn({.fonts = FontChoice::fixed, .theme = brand()});
        EXPECT_EQ(background(), graphics::rgb(0xFFF8EE));
    }
    EXPECT_EQ(background(), own);
    {
        const auto session = sessionOn({.fonts = FontChoice::fixed});
        EXPECT_EQ(background(), own);
        session->setDevice({.fonts = FontChoice::fixed, .theme = brand()});
        EXPECT_EQ(background(), graphics::rgb(0xFFF8EE));
    }
    EXPECT_EQ(background(), own);
}

TEST_F(SessionOfAHost, LeavesNothingBehind) {
    std::shared_ptr<host::WindowContent> content;
    {
        const auto session = sessionOn({.fonts = FontChoice::fixed});
        session->setDevice({});
        EXPECT_TRUE(host::Installation::exists());
        session->present();
        content = session->windowContent();
    }

    EXPECT_FALSE(host::Installation::exists());
    EXPECT_FALSE(commons::DefaultLogger::shared().setSink({})) << "the log still goes to the session";
    EXPECT_EQ(dynamic_cast<uikit::UIWindow&>(*content).rootViewController(), nullptr);
}

TEST_F(SessionOfAHost, MeasuresWithOtherFontsFromThenOn) {
    const auto session = sessionOn({.fonts = FontChoice::fixed});
    const host::TextShaper* const fixed = &host::Installation::textShaper();
    session->setDevice({.locale = "de", .fonts = FontChoice::fixed});
    EXPECT_EQ(&host::Installation::textShaper(), fixed);

    session->setDevice({.fonts = FontChoice::bundled});

    EXPECT_TRUE(dynamic_cast<const rasterbackend::RasterTextShaper*>(&host::Installation::textShaper()));
}

// --- What is written down ---

TEST_F(SessionOfAHost, WritesWhatItsPartsAreTold) {
    LedgerTracker tracker(log);
    tracker.trackReservedEvent();
    tracker.trackRestoreTapped(Referrer{"H\u00f6me"}, "Title");
    log->write({.severity = 3, .message = "a \xC3 b", .function = "call()"});

    EXPECT_THAT(lines(), ::testing::ElementsAre(
                             R"({"time":0,"event":"tracker","operation":"trackReservedEvent"})",
                             "{\"time\":0,\"event\":\"tracker\",\"operation\":\"trackRestoreTapped\",\"referrer\":\"H\u00f6me\","
                             "\"screenTitle\":\"Title\"}",
                             "{\"time\":0,\"event\":\"log\",\"severity\":3,\"message\":\"a \uFFFD b\",\"function\":\"call()\"}"));
    EXPECT_FALSE(log->isLost());
    events.setstate(std::ios::badbit);
    EXPECT_TRUE(log->isLost());
}

// --- Recordings ---

TEST_F(SessionOfAHost, IsRecordedWithTheDeviceThatItBeginsOn) {
    const tests::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "recording.json";
    const Json offers{{"options", Json::array()}};
    const Device asked{.locale = "de_AT", .fonts = FontChoice::fixed};
    Device given = asked;
    given.scale = 1.25;
    given.size = {400, 500};
    {
        Recording recording(file, offers, asked, HostScreen::scene);
        const auto session = sessionOn(given);
        session->present();
        recording.begin(*session);
        recording.willOpen(StartScreen::paywall);
        recording.willSetDevice(given);
        recording.write();
    }

    const Json written = Json::parse(tests::bytesOf(file));
    EXPECT_EQ(written["device"]["scale"], 1.25);
    EXPECT_EQ(written["device"]["size"], Json({400, 500}));
    EXPECT_EQ(written["device"]["locale"], "de_AT");
    EXPECT_EQ(written["host"], Json({{"screen", "scene"}}));
    EXPECT_EQ(written["offers"], offers);
    for (const Json& input : written["inputs"]) EXPECT_FALSE(input.contains("set") || input.contains("send")) << input;
}

TEST_F(SessionOfAHost, CannotBeWrittenBeforeItsRecordingBegins) {
    const tests::TemporaryFolder folder;
    EXPECT_DEATH(Recording(folder.path() / "a.json", Json::object(), {}, HostScreen::plain).write(),
                 "A recording has to begin before it is written");
}

} // namespace proupsells::hostprogram

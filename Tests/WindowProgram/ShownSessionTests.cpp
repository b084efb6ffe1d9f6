// A session in a real window, on the real clock.
#include <functional>
#include <iostream>
#include <sstream>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsWindow/ShownSession.hpp"
#include "Tests/Support/TemporaryFolder.hpp"
#include "Tests/WindowProgram/Played.hpp"
#include "Tests/WindowProgram/Program.hpp"

namespace proupsells::hostprogram {

using testing::HasSubstr;

namespace {

const char* const offersText = R"({"options": [{"SKU": "y", "type": "yearly", "price": "$99.99", "monthlyEffectivePrice": "$8.33"},
    {"SKU": "m", "type": "monthly", "price": "$14.99"}], "referrer": "Home"})";

// What is printed while it lives.
class Printed {
public:
    Printed() : m_former(std::cout.rdbuf(m_text.rdbuf())) {}
    ~Printed() { std::cout.rdbuf(m_former); }
    Printed(const Printed&) = delete;

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_former;
};

struct Session {
    int status = -1;
    std::string title;
    geometry::Size windowSize;
    std::string printed;
    Json recording;
    std::string played; // what the recording prints
};

class ShownSessionTest : public testing::Test {
protected:
    // Shows a session until it has printed this, then does that, and goes on until it ends.
    Session shown(ShowArguments arguments, const std::string& said, const std::function<void(QWindow&)>& whenSaid) {
        const std::filesystem::path file = folder.path() / "recording.json";
        const Json json = Json::parse(offersText);
        Printed printed;
        Session result;
        {
            Recording recording(file, json, arguments.device, HostScreen::scene);
            ShownSession session(arguments, readOffers(JsonCursor{json, "offers"}), arguments.device, &recording, nullptr);
            QTimer look;
            bool hasActed = false;
            int looks = 0;
            QObject::connect(&look, &QTimer::timeout, &look, [&] {
                constexpr int mostLooks = 1000; // of 20 ms
                QWindow& window = *QGuiApplication::topLevelWindows().front();
                if (++looks > mostLooks) return qtbackend::Application::quit(99);
                if (hasActed || printed.text().find(said) == std::string::npos) return;
                hasActed = true;
                result.title = window.title().toStdString();
                result.windowSize = {double(window.width()), double(window.height())};
                whenSaid(window);
            });
            look.start(20);
            result.status = session.run(*tests::program);
        }
        result.printed = printed.text();
        result.recording = Json::parse(tests::bytesOf(file));
        result.played = tests::playedLines(file);
        return result;
    }
    static void close(QWindow& window) { window.close(); }
    // A click on the middle of a control that stands there.
    static std::function<void(QWindow&)> clickAt(QPointF place) {
        return [place](QWindow& window) {
            for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, place, window.mapToGlobal(place), Qt::LeftButton,
                                  type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
                QCoreApplication::sendEvent(&window, &event);
            }
        };
    }

    tests::TemporaryFolder folder;
};

} // namespace

TEST_F(ShownSessionTest, ShowsThePaywallInAWindowOfItsSizeUntilThatIsClosed) {
    const Session session = shown({.device = {.size = {320, 600}}}, "trackUpsellViewed", close);

    EXPECT_EQ(session.status, 0);
    EXPECT_EQ(session.title, "ProUpsells");
    EXPECT_EQ(session.windowSize, (geometry::Size{320, 600}));
    EXPECT_THAT(session.printed, HasSubstr(R"("event":"present","controller":"VelaProUpsellViewController")"));
    EXPECT_THAT(session.printed, HasSubstr(R"("style":"formSheet","size":[320,600])"));
    EXPECT_THAT(session.printed, HasSubstr(R"("referrer":"Home")"));
    EXPECT_EQ(session.recording["device"]["size"], Json({320, 600}));
}

TEST_F(ShownSessionTest, ClosesItsWindowOnceThePaywallIsGone) {
    const Session session = shown({.device = {.size = {375, 700}}}, "trackUpsellViewed", clickAt({353, 22}));

    EXPECT_EQ(session.status, 0);
    EXPECT_THAT(session.printed, HasSubstr("trackUpsellDismissed"));
    EXPECT_THAT(session.printed, HasSubstr(R"("event":"dismiss")"));
    EXPECT_EQ(session.played, session.printed);
}

TEST_F(ShownSessionTest, BeginsWithTheScreenThatIsAskedFor) {
    const Session comparison = shown({.start = StartScreen::comparison}, "trackComparePlansTapped", close);
    EXPECT_THAT(comparison.printed, HasSubstr(R"("content":"ComparisonViewController")"));
    EXPECT_THAT(comparison.recording["inputs"].dump(), HasSubstr(R"("send":"comparePlans")"));
    EXPECT_EQ(comparison.played, comparison.printed);

    const Session store = shown({.start = StartScreen::store}, "Vela Pro Store Page", close);
    EXPECT_THAT(store.printed, HasSubstr(R"("content":"VelaProStorePageViewController")"));
    EXPECT_THAT(store.recording["inputs"].dump(), HasSubstr(R"("send":"whatIsPro")"));
    EXPECT_EQ(store.played, store.printed);
}

TEST_F(ShownSessionTest, KeepsTheDeviceOfItsArguments) {
    const ShowArguments arguments{.device = {.size = {330, 640},
                                             .scale = 1,
                                             .appearance = graphics::ColorScheme::dark,
                                             .layoutDirection = DirectionChoice::rightToLeft,
                                             .textSize = graphics::ContentSizeCategory::extraLarge,
                                             .reduceMotion = true,
                                             .safeArea = {10, 0, 20, 0}},
                                  .given = {"size", "scale", "appearance", "textSize", "reduceMotion"}};

    // In this direction the close button is at the left.
    const Session session = shown(arguments, "trackUpsellViewed", clickAt({22, 32}));

    EXPECT_THAT(session.printed, HasSubstr("trackUpsellDismissed"));
    const Json& device = session.recording["device"];
    EXPECT_EQ(device["appearance"], "dark");
    EXPECT_EQ(device["layoutDirection"], "rtl");
    EXPECT_EQ(device["textSize"], "extraLarge");
    EXPECT_EQ(device["reduceMotion"], true);
    EXPECT_EQ(device["safeArea"], Json({10, 0, 20, 0}));
    for (const Json& input : session.recording["inputs"]) EXPECT_FALSE(input.contains("set")) << input;
}

} // namespace proupsells::hostprogram

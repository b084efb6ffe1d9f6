// A session in a real window that follows its files, and the keys beside it. What becomes of it is read in its recording.
#include <functional>
#include <iostream>
#include <sstream>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsWindow/ShownSession.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Tests/Support/TemporaryFolder.hpp"
#include "Tests/WindowProgram/Played.hpp"
#include "Tests/WindowProgram/Program.hpp"

namespace proupsells::hostprogram {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace {

// What is written to a stream while it lives.
class WrittenTo {
public:
    explicit WrittenTo(std::ostream& stream) : m_stream(stream), m_former(stream.rdbuf(m_text.rdbuf())) {}
    ~WrittenTo() { m_stream.rdbuf(m_former); }
    WrittenTo(const WrittenTo&) = delete;

    std::string text() const { return m_text.str(); }

private:
    std::ostream& m_stream;
    std::ostringstream m_text;
    std::streambuf* m_former;
};

// Once this has been written to either stream, that is done, a moment later the next.
struct Stage {
    std::string written;
    std::function<void(QWindow&)> deed;
};

void pressKey(QWindow& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(&window, &event);
}

Stage keyStage(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return {"", [key, modifiers](QWindow& window) { pressKey(window, key, modifiers); }};
}

const Stage onceSeen{"trackUpsellViewed", [](QWindow&) {}};
const Stage closing{"", [](QWindow& window) { window.close(); }};

class WatchedSession : public ::testing::Test {
protected:
    ~WatchedSession() override { desktopPrefers(0); }

    static void desktopPrefers(unsigned scheme) {
        qtbackend::DesktopSettings::shared().adopt("org.freedesktop.appearance", "color-scheme", scheme);
    }

    void show(const std::vector<Stage>& stages, bool isWatching = true) {
        const Json json = Json::parse(tests::bytesOf(offers));
        ShowArguments arguments;
        arguments.device.size = {375, 700};
        arguments.device.scale = 1; // the screen's
        arguments.device.strings = isWatching ? SourceWatch::keptTranslations(folder.path()) : std::filesystem::path();
        arguments.given.push_back("theme");
        SourceWatch watch({offers, folder.path(), theme});
        const std::filesystem::path file = folder.path() / "recording.json";
        const WrittenTo output(std::cout), errors(std::cerr);
        {
            Recording recording(file, json, arguments.device, HostScreen::scene);
            ShownSession session(arguments, readOffers(JsonCursor{json, "offers"}), arguments.device, &recording,
                                 isWatching ? &watch : nullptr);
            QTimer look;
            int looks = 0;
            std::size_t stage = 0;
            QObject::connect(&look, &QTimer::timeout, &look, [&] {
                constexpr int mostLooks = 1500; // of 20 ms
                if (++looks > mostLooks) return qtbackend::Application::quit(99);
                if (stage == stages.size() || (output.text() + errors.text()).find(stages[stage].written) == std::string::npos)
                    return;
                stages[stage++].deed(*QGuiApplication::topLevelWindows().front());
            });
            look.start(20);
            status = session.run(*tests::program);
        }
        printed = output.text();
        played = tests::playedLines(file);
        said = errors.text();
        const Json recorded = Json::parse(tests::bytesOf(file));
        for (const Json& input : recorded["inputs"])
            for (const char* const key : {"set", "offers"})
                if (input.contains(key)) changes.push_back(input[key]);
    }

    tests::TemporaryFolder folder;
    std::filesystem::path offers =
        folder.write("offers.json", R"({"options": [{"SKU": "m", "type": "monthly", "price": "$14.99"}], "referrer": "Home"})");
    std::filesystem::path german = folder.write("de.lproj/Localizable.strings", "\"Close\" = \"Zu\";");
    std::filesystem::path theme = folder.write("theme.json", "{}");
    int status = -1;
    std::string printed, said, played;
    std::vector<Json> changes; // of the device and the offers
};

} // namespace

// --- Keys ---

TEST_F(WatchedSession, ChangesItsDeviceByKeys) {
    show({onceSeen, keyStage(Qt::Key_A), keyStage(Qt::Key_D), keyStage(Qt::Key_Plus), keyStage(Qt::Key_Minus), keyStage(Qt::Key_L),
          keyStage(Qt::Key_L), keyStage(Qt::Key_L, Qt::ShiftModifier), closing});

    EXPECT_EQ(status, 0);
    EXPECT_THAT(changes,
                ElementsAre(Json{{"appearance", "dark"}}, Json{{"layoutDirection", "rtl"}}, Json{{"textSize", "extraLarge"}},
                            Json{{"textSize", "large"}}, Json{{"locale", "de"}, {"layoutDirection", "auto"}},
                            Json{{"locale", "en_XA"}}, Json{{"locale", "de"}}));
    EXPECT_THAT(said, IsEmpty());
}

TEST_F(WatchedSession, ChangesTheSizeOfItsWindowByAKey) {
    QSize size;
    show({onceSeen, keyStage(Qt::Key_S), {"", [&](QWindow& window) { size = window.size(); }}, closing});

    EXPECT_EQ(size, QSize(320, 568)) << "from a size of its own to the first one";
}

TEST_F(WatchedSession, LeavesKeysWithOtherModifiersToTheScreens) {
    show({onceSeen, keyStage(Qt::Key_A, Qt::ControlModifier), keyStage(Qt::Key_A, Qt::AltModifier),
          keyStage(Qt::Key_A, Qt::MetaModifier), keyStage(Qt::Key_B), closing});

    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(WatchedSession, HasNoKeysOfItsOwnWhereItFollowsNothing) {
    show({onceSeen, keyStage(Qt::Key_A), keyStage(Qt::Key_S), closing}, false);

    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(WatchedSession, FollowsTheDesktopUntilSomethingIsChosenByHand) {
    show({onceSeen,
          {"", [](QWindow&) { desktopPrefers(1); }},
          {"", [](QWindow&) { desktopPrefers(2); }},
          keyStage(Qt::Key_A),
          {"", [](QWindow&) { desktopPrefers(1); }},
          {"", [](QWindow&) { desktopPrefers(2); }},
          keyStage(Qt::Key_Plus),
          {"",
           [](QWindow&) { qtbackend::DesktopSettings::shared().adopt("org.gnome.desktop.interface", "text-scaling-factor", 1.0); }},
          closing});

    EXPECT_THAT(changes, ElementsAre(Json{{"appearance", "dark"}}, Json{{"appearance", "light"}}, Json{{"appearance", "dark"}},
                                     Json{{"textSize", "extraLarge"}}));
}

// --- Files ---

TEST_F(WatchedSession, ShowsOtherOffersAndSaysWhatIsWrongWithTranslations) {
    show({{"trackUpsellViewed",
           [&](QWindow&) {
               folder.write("offers.json", R"({"options": [{"SKU": "n", "type": "monthly", "price": "$9"}], "referrer": "Feed"})");
               folder.write("de.lproj/Localizable.strings", "\"Close\" = ");
           }},
          {"Localizable.strings: /: ", [](QWindow&) {}},
          keyStage(Qt::Key_Escape)});

    EXPECT_EQ(status, 0);
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(changes[0]["referrer"], "Feed");
    EXPECT_EQ(changes[0]["options"][0]["SKU"], "n");
    EXPECT_THAT(said, StartsWith(german.string() + ": /: "));
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
    EXPECT_THAT(printed, HasSubstr(R"("operation":"trackUpsellDismissed","referrer":"Feed")"));
    EXPECT_EQ(played, printed);
}

TEST_F(WatchedSession, ShowsOtherTranslationsAndSaysWhatIsWrongWithOffers) {
    show({{"trackUpsellViewed",
           [&](QWindow&) {
               folder.write("offers.json", "{");
               folder.write("de.lproj/Localizable.strings", "\"Close\" = \"Weg damit\";");
           }},
          {"offers.json: /: ", [](QWindow&) {}},
          closing});

    EXPECT_THAT(changes, ElementsAre(Json{{"strings", {{"de", {{"Close", "Weg damit"}}}}}}));
    EXPECT_THAT(said, StartsWith(offers.string() + ": /: malformed JSON"));
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
}

TEST_F(WatchedSession, ShowsAnotherTheme) {
    show({{"trackUpsellViewed",
           [&](QWindow&) {
               folder.write("theme.json", R"({"faces": {"text": "DejaVu Sans"}})");
               folder.write("offers.json", "{");
           }},
          {"offers.json: /: ", [](QWindow&) {}},
          closing});

    EXPECT_THAT(changes, ElementsAre(Json{{"theme", {{"faces", {{"text", {{"family", "DejaVu Sans"}}}}}}}}));
}

// --- The end ---

TEST_F(WatchedSession, EndsWhereItsLinesAreLost) {
    show({{"trackUpsellViewed", [](QWindow&) { std::cout.setstate(std::ios::badbit); }}});
    std::cout.clear();

    EXPECT_EQ(status, 0);
}

} // namespace proupsells::hostprogram

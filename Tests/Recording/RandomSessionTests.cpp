// Whatever somebody does, playing the recording does it again.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "Platform/Accessibility/Reading.hpp"
#include "Tests/Recording/RecordedSession.hpp"

using namespace proupsells;
using namespace hostprogram;

namespace {

// Somebody who does this and that.
class Person {
public:
    Person(tests::RecordedSession& session, unsigned seed) : m_session(session), m_random(seed) {}

    void act() {
        // Often several things in one moment.
        if (upTo(3) > 0) m_session.pass(share() * (upTo(8) == 0 ? 3 : 0.12));
        switch (upTo(18)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4: return m_session.makeFrame();
        case 5:
        case 6: return touch();
        case 7: return tapControl();
        case 8: return m_session.view().hover(upTo(4) ? std::optional(point()) : std::nullopt);
        case 9:
        case 10: return m_session.view().scroll(point(), {share() * 80 - 40, share() * 600 - 200});
        case 11:
        case 12:
        case 13: {
            m_session.view().key(host::Key(1 + upTo(12)), upTo(5) == 0);
            return;
        }
        case 14: return assist();
        case 15: return upTo(6) ? void() : m_session.view().setSeen(m_isSeen = !m_isSeen);
        case 16: return upTo(3) ? void() : resize();
        case 17: return upTo(3) ? void() : change();
        }
    }

private:
    unsigned upTo(unsigned count) { return m_random() % count; }
    double share() { return double(m_random() % 100'000) / 99'991; }
    geometry::Point point() {
        const geometry::Size size = m_session.session().window().frame().size;
        return {share() * size.width, share() * size.height};
    }

    void touch() {
        const geometry::Point at = point();
        m_session.view().pointer(at, !m_isDown);
        for (unsigned moves = upTo(6); !m_isDown && moves > 0; --moves) {
            m_session.pass(share() * 0.03);
            m_session.view().pointer({at.x + share() * 30, at.y - share() * 90 * moves}, true);
            if (upTo(2)) m_session.makeFrame();
        }
        m_isDown = !m_isDown;
    }

    void tapControl() {
        const auto reading = m_session.content().reading();
        std::vector<geometry::Point> centres;
        for (const auto* element : accessibility::elementsOf(reading))
            if (element->isOperable() && element->isOnScreen && element->identifier != "close")
                centres.push_back(element->frame.center());
        if (centres.empty()) return;
        const geometry::Point at = centres[upTo(unsigned(centres.size()))];
        m_session.view().pointer(at, false);
        m_session.view().pointer(at, true);
        if (upTo(2)) m_session.pass(0.05);
        m_session.view().pointer(at, false);
        m_isDown = false;
    }

    void assist() {
        const auto reading = m_session.content().reading();
        const auto elements = accessibility::elementsOf(reading);
        // Something happens in between.
        if (upTo(2)) m_session.pass(share() * 0.2);
        const auto& element = *elements[upTo(unsigned(elements.size()))];
        if (element.reveal && upTo(2)) element.reveal();
        if (element.focus && upTo(2)) element.focus();
        if (element.adjust) element.adjust(upTo(2) ? 1 : -1);
        if (element.activate && element.identifier != "close") element.activate();
    }

    void resize() { m_session.view().setSize({300 + double(upTo(700)), 400 + double(upTo(600))}, {double(upTo(2) * 20), 0, 0, 0}); }

    void change() {
        Device device = m_session.session().device();
        switch (upTo(7)) {
        case 6: return replaceOffers();
        case 0: device.appearance = graphics::ColorScheme(1 - int(device.appearance)); break;
        case 1: device.textSize = graphics::ContentSizeCategory(upTo(12)); break;
        case 2: device.layoutDirection = DirectionChoice(upTo(3)); break;
        case 3: device.locale = upTo(2) ? "de_DE" : "ar_XB"; break;
        case 4: device.scale = 1 + share(); break;
        case 5: device.reduceMotion = !device.reduceMotion; break;
        }
        m_session.set(device);
    }

    void replaceOffers() {
        const bool onlyMonthly = upTo(2);
        m_session.replaceOffers(onlyMonthly, upTo(2));
    }

    tests::RecordedSession& m_session;
    std::mt19937 m_random;
    bool m_isDown = false, m_isSeen = true;
};

// PROUPSELLS_SEED plays one session only, PROUPSELLS_SESSIONS more of them than usual.
unsigned numberIn(const char* variable, unsigned otherwise) {
    const char* const text = std::getenv(variable);
    return text ? unsigned(std::atoi(text)) : otherwise;
}

void recordAndPlay(unsigned seed) {
    SCOPED_TRACE("PROUPSELLS_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    const tests::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "recording.json";
    Device device;
    device.size = {320 + double(random() % 600), 500 + double(random() % 500)};
    device.fonts = FontChoice::fixed;
    if (random() % 2)
        device.strings = folder.write("de.lproj/Localizable.strings", "\"Subscribe Now\" = \"Jetzt \\\"abonnieren\\\"\";")
                             .parent_path()
                             .parent_path();

    tests::Shown recorded;
    {
        tests::RecordedSession session(file, device);
        Person person(session, seed);
        session.makeFrame();
        session.pass(0.7);
        session.open(StartScreen(random() % 3));
        for (int act = 0; act < 120 && !session.isOver(); ++act) person.act();
        recorded = session.finish();
    }
    const tests::Shown played = tests::play(file);

    EXPECT_GT(recorded.frames.size(), 1u);
    EXPECT_TRUE(recorded == played) << tests::difference(recorded, played);
}

} // namespace

TEST(RandomSessions, ArePlayedBackToTheByte) {
    const unsigned first = numberIn("PROUPSELLS_SEED", 1);
    const unsigned count = numberIn("PROUPSELLS_SESSIONS", std::getenv("PROUPSELLS_SEED") ? 1 : 40);
    for (unsigned seed = first; seed < first + count; ++seed) recordAndPlay(seed);
}

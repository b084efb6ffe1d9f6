// What a frame repaints comes out as if the whole window had been painted, on the real screens.
#include <gtest/gtest.h>

#include <random>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using namespace tests;
using TapEvent = UpsellViewModel::TapEvent;

namespace {

enum class Start { paywall, comparison, store };

// Somebody who does not know what they want, in front of one of the screens.
class RestlessPerson {
public:
    RestlessPerson(Start start, unsigned seed) : m_start(start), m_random(seed) {
        m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
        show();
    }
    ~RestlessPerson() { m_window->setRootViewController(nullptr); }

    void act() {
        switch (m_random() % 6) {
        case 0: return wait(length(6));
        case 1: return wait(1.0 / 60);
        case 2: return tap();
        case 3: return drag();
        case 4: return m_window->scroll(place(), {0, length(400) - 200});
        default: return changeAppearance();
        }
    }
    const graphics::DisplayList& paint() {
        m_loop.settle();
        if (!m_window->rootViewController()->presentedViewController()) show();
        m_window->paint(m_list);
        return m_list;
    }

    void scroll(double distance) { m_window->scroll({size.width / 2, size.height * 3 / 4}, {0, distance}); }
    void waitUntil(double time_s) { m_loop.runUntil(time_s); }
    // By the page control's right half.
    void chooseNextPage() {
        const accessibility::SemanticNode screen = m_window->semanticTree();
        const geometry::Rect control = accessibility::findByIdentifier(screen, "carousel.pageControl")->frame;
        const geometry::Point at{control.maxX() - 2, control.midY()};
        touch(host::TouchPhase::began, at);
        touch(host::TouchPhase::ended, at);
    }

    static constexpr geometry::Size size{375, 800};

private:
    double length(double limit) { return double(m_random() % 10000) / 10000 * limit; }
    geometry::Point place() { return {length(size.width), length(size.height)}; }
    void wait(double duration_s) { m_loop.runUntil(m_loop.now_s() + duration_s); }
    void touch(host::TouchPhase phase, geometry::Point at) { m_window->touch({phase, at, m_loop.now_s()}); }

    void show() {
        m_entry = VelaProUpsellViewController::create(twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall, "Test",
                                                      Entitlement::velaPRO, true);
        m_window->rootViewController()->present(m_entry, false);
        m_loop.settle();
        const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(m_entry->children().front());
        const auto& taps = paywall->upsellViewModel()->tapEventOccurred;
        if (m_start == Start::comparison) taps.send({TapEvent::ComparePlans{}});
        if (m_start == Start::store) taps.send({TapEvent::WhatIsPro{}});
    }
    void tap() {
        const geometry::Point at = place();
        touch(host::TouchPhase::began, at);
        touch(host::TouchPhase::ended, at);
    }
    // Left in the middle now and then, so that a frame is shown while the finger is down.
    void drag() {
        const geometry::Point from = place(), to = place();
        touch(host::TouchPhase::began, from);
        for (int step = 1; step <= 4; ++step) {
            wait(1.0 / 60);
            touch(host::TouchPhase::moved, {from.x + (to.x - from.x) * step / 4, from.y + (to.y - from.y) * step / 4});
        }
        touch(m_random() % 4 ? host::TouchPhase::ended : host::TouchPhase::cancelled, to);
    }
    void changeAppearance() {
        uikit::UITraitCollection traits = m_window->traits();
        traits.userInterfaceStyle =
            traits.userInterfaceStyle == graphics::ColorScheme::light ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
        m_window->setTraits(traits);
    }

    const Start m_start;
    std::mt19937 m_random;
    runloop::MainRunLoop m_loop{std::make_shared<runloop::VirtualClock>()};
    host::Installation m_services{host::Services{.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                                                 .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                                                 .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}};
    std::shared_ptr<uikit::UIWindow> m_window = uikit::UIWindow::create(size, {0, 0, 34, 0});
    std::shared_ptr<VelaProUpsellViewController> m_entry;
    graphics::DisplayList m_list;
};

// The paywall left alone: its damage at 60 frames a second over a stretch of time, in points.
std::vector<geometry::Rect> damageOverTime(double start_s, double end_s) {
    RestlessPerson person(Start::paywall, 1);
    rasterbackend::RasterSurface surface;
    person.waitUntil(start_s);
    surface.present(person.paint(), RestlessPerson::size, 1);
    std::vector<geometry::Rect> damage;
    for (double now_s = start_s + 1.0 / 60; now_s < end_s; now_s += 1.0 / 60) {
        person.waitUntil(now_s);
        surface.present(person.paint(), RestlessPerson::size, 1);
        for (const rasterbackend::PixelRect& rect : surface.lastDamage())
            damage.push_back({{double(rect.left), double(rect.top)}, {double(rect.width()), double(rect.height())}});
    }
    return damage;
}

class DamageOfScreens : public testing::TestWithParam<std::tuple<Start, double>> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(All, DamageOfScreens,
                         testing::Combine(testing::Values(Start::paywall, Start::comparison, Start::store),
                                          testing::Values(1, 1.25, 2, 3)));

TEST_P(DamageOfScreens, RepaintsAsTheWholeWindowWouldBePainted) {
    const auto [start, scale] = GetParam();
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE(seed);
        RestlessPerson person(start, seed);
        rasterbackend::RasterSurface surface;
        for (int step = 0; step < 20; ++step) {
            SCOPED_TRACE(step);
            const graphics::DisplayList& list = person.paint();
            surface.present(list, RestlessPerson::size, scale);
            rasterbackend::RasterSurface fresh;
            fresh.present(list, RestlessPerson::size, scale);
            ASSERT_TRUE(isSame(surface.picture(), fresh.picture()));
            person.act();
        }
    }
}

// Frame after frame: the header slides, the strips drift, and the page is scrolled by whole and by broken numbers of pixels.
TEST_P(DamageOfScreens, MovesWhatIsOnTheScreenAsTheWholeWindowWouldBePainted) {
    const auto [start, scale] = GetParam();
    RestlessPerson person(start, 1);
    rasterbackend::RasterSurface surface;
    double now_s = 5.1;
    for (int frame = 0; frame < 40; ++frame) {
        SCOPED_TRACE(frame);
        person.waitUntil(now_s += 1.0 / 60);
        if (frame % 4 == 3) person.scroll(frame % 3 ? 20 : 7.3);
        const graphics::DisplayList& list = person.paint();
        surface.present(list, RestlessPerson::size, scale);
        rasterbackend::RasterSurface fresh;
        fresh.present(list, RestlessPerson::size, scale);
        ASSERT_TRUE(isSame(surface.picture(), fresh.picture()));
    }
}

TEST(DamageOfThePaywall, OfASlidingPageIsTheHeader) {
    constexpr double headerBottom = 254;
    const std::vector<geometry::Rect> damage = damageOverTime(5.1, 6.9);

    EXPECT_FALSE(damage.empty());
    for (const geometry::Rect& rect : damage) EXPECT_LE(rect.maxY(), headerBottom);
}

// A second after somebody has chosen another page, its title comes by itself.
TEST(DamageOfThePaywall, OfATitleThatFadesIsTheTitle) {
    RestlessPerson person(Start::paywall, 1);
    person.waitUntil(1);
    person.paint();
    person.chooseNextPage();
    person.waitUntil(2.05);
    rasterbackend::RasterSurface surface;
    surface.present(person.paint(), RestlessPerson::size, 1);

    const rasterbackend::PixelRect lowerLeftOfTheHeader{0, 150, 300, 254};
    bool hasFaded = false;
    for (double now_s = 2.1; now_s < 2.3; now_s += 1.0 / 60) {
        person.waitUntil(now_s);
        surface.present(person.paint(), RestlessPerson::size, 1);
        hasFaded |= !surface.lastDamage().empty();
        for (const rasterbackend::PixelRect& rect : surface.lastDamage()) EXPECT_TRUE(lowerLeftOfTheHeader.contains(rect));
    }
    EXPECT_TRUE(hasFaded);
}

TEST(DamageOfThePaywall, IsNothingWhileNothingMoves) { EXPECT_TRUE(damageOverTime(1, 4.9).empty()); }

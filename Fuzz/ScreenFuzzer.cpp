// Any bytes as what a person, a machine and a host do to the three screens: nothing stops, every frame is sound, and nothing is
// left.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Fuzz/ByteReader.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

void requireSound(const accessibility::SemanticNode& node) {
    const geometry::Rect& frame = node.frame;
    require(std::isfinite(frame.minX()) && std::isfinite(frame.minY()) && frame.width() >= 0 && frame.height() >= 0);
    for (const accessibility::SemanticNode& child : node.children) requireSound(child);
}

host::Services services() {
    host::Services services;
    services.clipDecoder = std::make_shared<headless::FakeClipDecoder>();
    return services;
}

class Session {
public:
    Session() : m_bed(services()), m_window(uikit::UIWindow::create({375, 800})) {
        headless::TestBed::setUnexpectedLogHandler([](const commons::LogRecord&) {});
        m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
        present();
    }
    ~Session() { m_window->setRootViewController(nullptr); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void step(fuzz::ByteReader& script) {
        switch (script.below(14)) {
        case 0: return tap(script);
        case 1: return touch(script);
        case 2: m_window->key(host::Key(script.below(13)), script.below(2) == 1); return;
        case 3: m_bed.runFor(script.below(64) / 32.0); return;
        case 4: return operate(script);
        case 5: m_window->scroll(place(script), {script.coordinate(100), script.coordinate(2000) - 1000}); return;
        case 6: m_window->pointer(place(script)); return;
        case 7: m_window->setSize({100.0 + script.below(256) * 4, 100.0 + script.below(256) * 4}, {}); return;
        case 8: return setTraits(script);
        case 9: m_entry->setOptions(script.below(2) ? tests::twoPlans() : std::vector<SubscriptionOption>{}); return;
        case 10:
            m_entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$" + std::to_string(script.below(256)));
            return;
        case 11: return openStorePage();
        case 12: return look();
        default: return present();
        }
    }
    // Looking takes longer than most steps, so it is one of them.
    void look() {
        graphics::DisplayList list;
        m_window->paint(list);
        requireSound(m_window->semanticTree());
        (void)m_window->reading();
    }

private:
    // Anew where it is not there.
    void present() {
        if (m_window->frontMostViewController() != m_window->rootViewController()) return;
        m_entry = VelaProUpsellViewController::create(tests::twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall,
                                                      Referrer{"Fuzz"}, Entitlement::velaPRO, false);
        m_window->rootViewController()->present(m_entry, true);
    }
    void openStorePage() {
        if (m_entry->children().empty()) return;
        const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(m_entry->children().front());
        paywall->upsellViewModel()->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
    }
    geometry::Point place(fuzz::ByteReader& script) {
        const geometry::Size size = m_window->frame().size;
        const double x = script.coordinate(size.width);
        return {x, script.coordinate(size.height)};
    }
    void touch(fuzz::ByteReader& script) {
        const auto phase = host::TouchPhase(script.below(4));
        m_window->touch({phase, place(script), m_bed.now_s()});
    }
    void tap(fuzz::ByteReader& script) {
        const geometry::Point where = place(script);
        m_window->touch({host::TouchPhase::began, where, m_bed.now_s()});
        m_window->touch({host::TouchPhase::ended, where, m_bed.now_s()});
        m_bed.settle();
    }
    // What assistive technology does to one of the controls.
    void operate(fuzz::ByteReader& script) {
        const accessibility::SemanticNode tree = m_window->semanticTree();
        const auto controls = accessibility::controls(tree);
        if (controls.empty()) return;
        const accessibility::SemanticNode& control = *controls[std::size_t(script.below(256)) % controls.size()];
        switch (script.below(3)) {
        case 0:
            if (control.activate) control.activate();
            return;
        case 1:
            if (control.adjust) control.adjust(script.below(2) ? 1 : -1);
            return;
        default:
            if (control.revealWhole) control.revealWhole();
        }
    }
    void setTraits(fuzz::ByteReader& script) {
        uikit::UITraitCollection traits = m_window->traits();
        traits.userInterfaceStyle = script.below(2) ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
        traits.layoutDirection = script.below(2) ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
        traits.preferredContentSizeCategory = graphics::ContentSizeCategory(script.below(12));
        traits.reduceMotion = script.below(2) == 1;
        m_window->setTraits(traits);
    }

    headless::TestBed m_bed;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<VelaProUpsellViewController> m_entry;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t longest = 256;
    fuzz::ByteReader script(data, std::min(size, longest));
    Session session;
    while (!script.isOver()) session.step(script);
    session.look();
    return 0;
}

#include "Tools/ScreenMatrix/Matrix.hpp"

#include <set>
#include <span>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/CommandLine.hpp"
#include "Apps/ProUpsellsHost/Driver.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Word.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Foundation/Resources.hpp"

namespace proupsells::matrix {

using accessibility::SemanticNode;
using hostprogram::Device;
using hostprogram::Json;
using hostprogram::StartScreen;
using TapEvent = UpsellViewModel::TapEvent;

namespace {

constexpr hostprogram::Word<StartScreen> screens[] = {
    {"paywall", StartScreen::paywall},
    {"comparison", StartScreen::comparison},
    {"store", StartScreen::store},
};

// A key of the device, and the words that it takes in turn.
struct Dimension {
    const char* key;
    std::vector<Json> values;
};

std::vector<Dimension> dimensions(Extent extent) {
    if (extent == Extent::sample)
        return {{"layoutDirection", {"ltr", "rtl"}},
                {"textSize", {"large", "accessibilityExtraExtraExtraLarge"}},
                {"size", {{375, 667}, {1440, 900}}},
                {"appearance", {"light"}}};
    return {
        {"layoutDirection", {"ltr", "rtl"}},
        {"textSize",
         {"extraSmall", "small", "medium", "large", "extraLarge", "extraExtraLarge", "extraExtraExtraLarge", "accessibilityMedium",
          "accessibilityLarge", "accessibilityExtraLarge", "accessibilityExtraExtraLarge", "accessibilityExtraExtraExtraLarge"}},
        {"size", {{320, 568}, {375, 667}, {375, 812}, {430, 932}, {844, 390}, {768, 1024}, {1024, 768}, {1440, 900}}},
        {"appearance", {"light", "dark"}}};
}

std::string wordOf(const Json& value) {
    if (value.is_string()) return value.get<std::string>();
    return std::to_string(value[0].get<int>()) + "x" + std::to_string(value[1].get<int>());
}

Device deviceOf(const Options& options) {
    Device device;
    device.locale = options.locale;
    device.strings = options.strings;
    return device;
}

// A screen that is shown, and what a person does to see all of it.
class Screen {
public:
    Screen(StartScreen screen, const Options& options)
        : m_screen(screen), m_options(options), m_loop(std::make_shared<runloop::VirtualClock>()),
          m_session(offers(), deviceOf(options), {}, ffmpegbackend::Pace::exact,
                    std::make_shared<hostprogram::EventLog>(m_discarded)),
          m_driver(m_loop, m_session) {
        m_session.present();
        m_driver.finishTransitions();
        open();
    }

    void audit(const std::string& configuration, const Device& device, const Tell& tell) {
        m_session.setDevice(device);
        m_driver.wait(0);
        std::set<std::string> told;
        do {
            const SemanticNode tree = m_session.window().semanticTree();
            const tooling::AuditOptions options{device.appearance, m_options.leastControl,
                                                foundation::pseudoLanguageOf(foundation::Locale::current().languageTag())};
            auto findings = tooling::audit(tree, options);
            for (auto& finding : tooling::audit(m_session.window().reading(), options)) findings.push_back(std::move(finding));
            for (const tooling::Finding& finding : findings)
                if (told.insert(std::string(tooling::nameOf(finding.rule)) + finding.detail).second) tell(configuration, finding);
        } while (showMore());
        m_session.window().key(host::Key::home);
    }

private:
    static hostprogram::Offers offers() {
        hostprogram::Offers offers = hostprogram::readOffersFile(foundation::requiredResource("offers.json"));
        offers.shouldMentioniCloudSync = true;
        return offers;
    }

    void open() {
        if (m_screen == StartScreen::paywall) return;
        m_session.send(m_screen == StartScreen::store ? TapEvent{TapEvent::WhatIsPro{}} : TapEvent{TapEvent::ComparePlans{}});
        m_driver.finishTransitions();
        const SemanticNode tree = m_session.window().semanticTree();
        for (const SemanticNode* control : accessibility::controls(tree)) {
            const bool isClosed = accessibility::findAllByType(*control, "FeatureChildRow").empty();
            if (control->identifier.starts_with("comparison.category.") && isClosed && control->activate) control->activate();
        }
        m_driver.wait(1);
    }

    // The next page of the paywall's header, or of the store page, which has views only for what is in sight. False behind the
    // last.
    bool showMore() {
        if (m_screen == StartScreen::store) return scrollOn();
        if (m_screen == StartScreen::comparison) return false;
        constexpr int pages = 4;
        m_page = (m_page + 1) % pages;
        m_driver.wait(secondsAPage);
        return m_page != 0;
    }

    bool scrollOn() {
        const auto before = offset();
        m_session.window().key(host::Key::pageDown);
        m_driver.wait(0);
        return offset() != before;
    }

    double offset() {
        const SemanticNode tree = m_session.window().semanticTree();
        const auto lists = accessibility::findAllByType(tree, "UICollectionView");
        return lists.empty() ? 0 : lists.front()->scroll->contentOffset.y;
    }

    static constexpr double secondsAPage = 5;

    StartScreen m_screen;
    const Options& m_options;
    std::ostringstream m_discarded;
    runloop::MainRunLoop m_loop;
    hostprogram::HostSession m_session;
    hostprogram::Driver m_driver;
    int m_page = 0;
};

// Every combination of the dimensions' values with its words, the first dimension the slowest.
using Visit = std::function<void(const std::string& words, const Device& device)>;
void forEachDevice(std::span<const Dimension> dimensions, const std::string& words, Device& device, const Visit& visit) {
    if (dimensions.empty()) return visit(words, device);
    for (const Json& value : dimensions.front().values) {
        hostprogram::readDeviceKey(device, dimensions.front().key, hostprogram::JsonCursor{value, "matrix"}, {});
        forEachDevice(dimensions.subspan(1), words + " " + wordOf(value), device, visit);
    }
}

} // namespace

std::size_t auditAll(const Options& options, const Tell& tell) {
    std::size_t count = 0;
    for (const auto& [name, screen] : screens) {
        Screen shown(screen, options);
        Device device = deviceOf(options);
        forEachDevice(dimensions(options.extent), options.locale + " " + std::string(name), device,
                      [&](const std::string& words, const Device& each) {
                          shown.audit(words, each, tell);
                          ++count;
                      });
    }
    return count;
}

} // namespace proupsells::matrix

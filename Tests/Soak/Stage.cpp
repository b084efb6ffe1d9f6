#include "Tests/Soak/Stage.hpp"

#include <utility>

#include "Platform/Accessibility/Search.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/Support/AllocationCounter.hpp"

namespace proupsells::soak {

namespace {

host::Services servicesWith(std::shared_ptr<host::ClipDecoder> decoder) {
    host::Services services;
    services.clipDecoder = std::move(decoder);
    return services;
}

// Longer than a transition.
constexpr double oneScreen_s = 1;
// What waits to forget an earlier page of the carousel has done so.
constexpr double rest_s = 7;

} // namespace

const char* nameOf(Screen screen) {
    switch (screen) {
    case Screen::paywall: return "paywall";
    case Screen::comparison: return "comparison";
    case Screen::store: return "store";
    }
    return "";
}

Stage::Stage(geometry::Size size) : m_bed(servicesWith(m_decoder)), m_window(uikit::UIWindow::create(size)) {
    m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
}

Stage::~Stage() { m_window->setRootViewController(nullptr); }

void Stage::present() {
    const auto entry =
        VelaProUpsellViewController::create(tests::twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home", 5}, Entitlement::velaPRO, true);
    m_entry = entry;
    m_window->rootViewController()->present(entry, true);
}

void Stage::open(Screen screen) {
    present();
    m_bed.runFor(oneScreen_s);
    if (const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(entry()->children().front()))
        m_model = paywall->upsellViewModel();
    if (screen == Screen::paywall) return;
    screen == Screen::comparison ? operate("comparePlans") : sendWhatIsPro();
    m_bed.runFor(oneScreen_s);
}

void Stage::close() {
    for (const char* button : {"comparison.close", "store.close", "close"}) {
        operate(button);
        m_bed.runFor(oneScreen_s);
    }
    m_bed.runFor(rest_s);
    m_decoder->takeOpenedFiles();
}

Frame Stage::paint() {
    Frame frame;
    frame.allocations = tests::allocationsDuring([this] {
        m_list.clear();
        m_window->paint(m_list);
    });
    frame.commands = m_list.commands.size();
    return frame;
}

Frame Stage::look() {
    Frame frame;
    frame.allocations = tests::allocationsDuring([&] {
        frame.commands = paint().commands;
        (void)m_window->reading();
    });
    return frame;
}

void Stage::operate(const std::string& identifier) {
    const accessibility::SemanticNode tree = m_window->semanticTree();
    const accessibility::SemanticNode* const control = accessibility::findByIdentifier(tree, identifier);
    if (!control || !control->activate) return;
    // It may take the control away.
    const auto activate = control->activate;
    activate();
    m_bed.settle();
}

void Stage::sendWhatIsPro() {
    const auto held = entry();
    if (!held || held->children().empty()) return;
    if (const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(held->children().front()))
        paywall->upsellViewModel()->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
}

std::string Stage::left() const {
    std::string left;
    if (m_window->frontMostViewController() != m_window->rootViewController()) left += " a presentation";
    if (!m_entry.expired()) left += " the entry controller";
    if (!m_model.expired()) left += " the paywall's model";
    if (m_decoder->openCount() > 0) left += " clips";
    if (m_bed.services().clipDecoder.get() != m_decoder.get()) left += " another decoder";
    if (const std::size_t timers = const_cast<headless::TestBed&>(m_bed).loop().waitingTimerCount())
        left += " " + std::to_string(timers) + " timers";
    return left;
}

std::vector<std::string> Stage::takeLogs() {
    std::vector<std::string> messages;
    for (const commons::LogRecord& record : m_bed.takeLogRecords()) messages.push_back(record.message);
    return messages;
}

} // namespace proupsells::soak

// The paywall before a host, to be operated by keys and read.
#pragma once

#include <memory>
#include <string>

#include <gmock/gmock.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {

class KeyboardScreen : public ::testing::Test {
protected:
    KeyboardScreen() {
        entry->setDelegate(delegate);
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        window->rootViewController()->present(entry, true);
        bed.runFor(1);
    }
    ~KeyboardScreen() override { window->setRootViewController(nullptr); }

    // The identifier of the control in focus; empty for none.
    std::string inFocus() {
        const accessibility::ReadingElement reading = window->reading();
        for (const accessibility::ReadingElement* element : accessibility::elementsOf(reading))
            if (element->isFocused) return element->identifier;
        return {};
    }
    void tabTo(const std::string& identifier) {
        for (int step = 0; step < 50 && inFocus() != identifier; ++step) window->key(host::Key::tab);
        ASSERT_EQ(inFocus(), identifier);
    }
    void press(host::Key key) {
        window->key(key);
        bed.runFor(1);
    }

    // Of the control; the test fails without it.
    accessibility::ReadingElement told(const std::string& identifier) {
        const accessibility::ReadingElement reading = window->reading();
        for (const accessibility::ReadingElement* element : accessibility::elementsOf(reading))
            if (element->identifier == identifier) return *element;
        ADD_FAILURE() << identifier << " is not read";
        return {};
    }
    bool isChecked(const std::string& identifier) { return told(identifier).isChecked.value_or(false); }
    bool isExpanded(const std::string& identifier) { return told(identifier).isExpanded.value_or(false); }
    bool isOnScreen(const std::string& identifier) { return told(identifier).isOnScreen; }
    std::string valueOf(const std::string& identifier) { return told(identifier).value; }
    geometry::Rect frameOf(const std::string& identifier) { return told(identifier).frame; }
    // As a person would, by whatever stands there.
    void tap(const std::string& identifier) {
        const accessibility::SemanticNode tree = window->semanticTree();
        const accessibility::SemanticNode* const node = accessibility::findByIdentifier(tree, identifier);
        ASSERT_NE(node, nullptr) << identifier;
        node->activate();
        bed.runFor(1);
    }
    // As a host does.
    void openStore() {
        dynamic_cast<UpsellViewController&>(*entry->children().front())
            .upsellViewModel()
            ->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
        bed.runFor(1);
    }

    headless::TestBed bed;
    Ledger ledger;
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VelaProUpsellViewController> entry =
        VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home"}, Entitlement::velaPRO, true);
};

} // namespace proupsells::tests

// The store page on a screen of its own, on a virtual clock, with made-up clips.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/VelaUIKit/ChargedButton.hpp"
#include "ProUpsells/StorePageShelfViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/SemanticSearch.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::tests {

inline host::Services servicesWithClips(std::shared_ptr<host::ClipDecoder> decoder) {
    host::Services services;
    services.clipDecoder = std::move(decoder);
    return services;
}

// The rectangle within a thousandth of a point.
MATCHER_P(FrameNear, expected, ::testing::PrintToString(expected)) {
    const geometry::Rect& frame = arg;
    const geometry::Rect& wanted = expected;
    const auto isNear = [](double a, double b) { return a - b < 1e-3 && b - a < 1e-3; };
    return isNear(frame.minX(), wanted.minX()) && isNear(frame.minY(), wanted.minY()) && isNear(frame.width(), wanted.width()) &&
           isNear(frame.height(), wanted.height());
}

// A window of 375 × 800 with nothing in it yet. Texts are half their size wide a character, lines 1.25 of it high.
class StoreTest : public ::testing::Test {
protected:
    StoreTest()
        : decoder(std::make_shared<headless::FakeClipDecoder>()), bed(servicesWithClips(decoder)),
          window(uikit::UIWindow::create({375, 800})) {}
    ~StoreTest() override {
        window->setRootViewController(nullptr);
        VelaProStorePageViewController::shouldMentioniCloudSync = false;
    }

    void show(const std::shared_ptr<uikit::UIViewController>& controller) {
        window->setRootViewController(controller);
        bed.settle();
    }
    std::shared_ptr<VelaProStorePageViewController> makePage() {
        return VelaProStorePageViewController::create(twoPlans(), Referrer{"Home"}, Entitlement::velaPRO);
    }
    std::shared_ptr<VelaProStorePageViewController> showPage() {
        auto page = makePage();
        show(page);
        return page;
    }
    void scrollTo(VelaProStorePageViewController& page, double y) {
        page.collectionView()->setContentOffset({0, y});
        bed.settle();
    }

    void setAppearance(graphics::ColorScheme scheme) {
        uikit::UITraitCollection traits = window->traits();
        traits.userInterfaceStyle = scheme;
        window->setTraits(traits);
        bed.settle();
    }
    accessibility::SemanticNode tree() { return window->semanticTree(); }
    accessibility::SemanticNode find(std::string_view identifier) { return tests::find(tree(), identifier); }
    bool has(std::string_view identifier) { return tests::has(tree(), identifier); }
    geometry::Rect frame(std::string_view identifier) { return find(identifier).frame; }
    double stripOffset(std::string_view identifier) { return find(identifier).scroll->contentOffset.x; }

    void touch(host::TouchPhase phase, geometry::Point location) { window->touch({phase, location, bed.now_s()}); }
    void tap(std::string_view identifier) {
        const geometry::Point location = frame(identifier).center();
        touch(host::TouchPhase::began, location);
        touch(host::TouchPhase::ended, location);
        bed.settle();
    }
    graphics::DisplayList painted() {
        graphics::DisplayList list;
        window->paint(list);
        return list;
    }

    std::shared_ptr<headless::FakeClipDecoder> decoder;
    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window;
};

} // namespace proupsells::tests

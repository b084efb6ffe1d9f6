// The store page in a window without a display, at 60 frames a second.
#pragma once

#include "Backends/Raster/RasterSurface.hpp"
#include "Benchmarks/PaywallWindow.hpp"
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"

namespace proupsells::benchmarks {

class StoreWindow {
public:
    static constexpr double scale = 2;

    explicit StoreWindow(geometry::Size size = {375, 800})
        : m_size(size), m_window(uikit::UIWindow::create(size)),
          m_page(proupsells::VelaProStorePageViewController::create(twoPlans(), "Benchmark", proupsells::Entitlement::velaPRO)) {
        m_window->setNeedsDisplayHandler([this] { m_needsDisplay = true; });
        m_window->setRootViewController(m_page);
        runloop::MainRunLoop::main().settle();
        // Until the clips have arrived and every picture of the first view is there.
        for (int frame = 0; frame < 60; ++frame) passFrame();
    }
    ~StoreWindow() {
        m_window->setRootViewController(nullptr);
        m_window->setNeedsDisplayHandler({});
    }

    double offset() const { return m_page->collectionView()->contentOffset().y; }
    double largestOffset() const {
        const auto& list = *m_page->collectionView();
        return list.contentSize().height + list.contentInset().bottom - list.bounds().height();
    }
    void scrollTo(double y) { m_page->collectionView()->setContentOffset({0, y}); }

    // 1/60 s of the run loop's time, and a picture where one is wanted, as a window on a display would make it.
    void passFrame() {
        runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
        loop.runUntil(loop.now_s() + 1.0 / 60);
        if (!std::exchange(m_needsDisplay, false) && !m_window->isAnimating()) return;
        m_window->paint(m_list);
        m_surface.present(m_list, m_size, scale);
        m_frames += 1;
    }
    // How many pictures were made.
    int frames() const { return m_frames; }

private:
    geometry::Size m_size;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<proupsells::VelaProStorePageViewController> m_page;
    graphics::DisplayList m_list;
    rasterbackend::RasterSurface m_surface;
    bool m_needsDisplay = true;
    int m_frames = 0;
};

} // namespace proupsells::benchmarks

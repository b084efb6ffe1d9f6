// A screen in memory of the host's, with everything that it needs around it.
#pragma once

#include <functional>
#include <memory>

#include "Backends/Raster/PixelView.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::standard {

// The view of a window with a controller in it. Installs what the host has not installed (install()):
//
//     standard::PixelScreen screen(paywall, {375, 800});
//     while (screen.controller()) {
//         waitForEvents(screen.nextDueDelay_ms());
//         if (screen.paint(buffer, 2)) show(buffer);
//     }
//
// The screen may be destroyed from inside everything that it calls.
class PROUPSELLS_EXPORT PixelScreen final : public rasterbackend::PixelView {
public:
    // The size is in points. Null: an empty screen.
    explicit PixelScreen(std::shared_ptr<uikit::UIViewController> controller = nullptr, geometry::Size size = {});
    // Closes first.
    ~PixelScreen();

    // Takes the former one's place, with all that it presents. Null: empties the screen.
    void setController(std::shared_ptr<uikit::UIViewController> controller);
    // Null for none, and once the controller has gone.
    uikit::UIViewController* controller() const;
    // What the controller stands in. Its traits are light or dark, direction, text size and the like.
    uikit::UIWindow& window() const { return *m_window; }

    // Told when the controller is to go: its close button was pressed, or its dismiss() was called. The host then takes it away.
    // Without a handler, the screen does so itself.
    void setDismissalHandler(std::function<void()> handler) { m_dismissalHandler = std::move(handler); }
    // Takes the controller away, so that it hears that it has closed, and tells of no dismissal any more.
    void close();

private:
    explicit PixelScreen(const std::shared_ptr<uikit::UIWindow>& window);
    void controllerIsToGo();

    std::shared_ptr<uikit::UIWindow> m_window;
    std::function<void()> m_dismissalHandler;
};

} // namespace proupsells::standard

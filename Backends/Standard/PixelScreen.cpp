#include "Backends/Standard/PixelScreen.hpp"

#include <utility>

#include "Backends/Standard/Standard.hpp"

namespace proupsells::standard {

namespace {

std::shared_ptr<uikit::UIWindow> newWindow() {
    install();
    return uikit::UIWindow::create();
}

} // namespace

PixelScreen::PixelScreen(const std::shared_ptr<uikit::UIWindow>& window) : PixelView(window), m_window(window) {
    m_window->setRootDismissalHandler([this] { controllerIsToGo(); });
}

PixelScreen::PixelScreen(std::shared_ptr<uikit::UIViewController> controller, geometry::Size size) : PixelScreen(newWindow()) {
    setSize(size);
    setController(std::move(controller));
}

PixelScreen::~PixelScreen() { close(); }

void PixelScreen::setController(std::shared_ptr<uikit::UIViewController> controller) {
    const auto kept = m_window;
    kept->setRootViewController(std::move(controller));
}

uikit::UIViewController* PixelScreen::controller() const { return m_window->rootViewController(); }

void PixelScreen::controllerIsToGo() {
    // A copy, because the handler may replace itself or destroy the screen.
    if (const auto handler = m_dismissalHandler) return handler();
    setController(nullptr);
}

void PixelScreen::close() {
    const auto kept = m_window;
    kept->setRootDismissalHandler({});
    kept->setRootViewController(nullptr);
}

} // namespace proupsells::standard

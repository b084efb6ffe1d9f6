#include "ScreenTest/TestScreen.hpp"

#include "Backends/Raster/RasterSurface.hpp"
#include "Backends/Standard/Standard.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/LocaleServices.hpp"
#include "Tooling/Driver.hpp"
#include "Tooling/ScreenTree.hpp"
#include "Tooling/SpokenScreen.hpp"
#include "Tooling/TapPoint.hpp"

namespace proupsells::screentest {

namespace {

host::Services servicesFor(const TestDevice& device) {
    host::Services services = standard::newServices(standard::ClipPace::exact);
    if (device.fonts == TestFonts::fixed) services.textShaper = std::make_shared<headless::FixedTextShaper>();
    return services;
}

} // namespace

TestScreen::TestScreen(TestDevice device)
    : m_device(std::move(device)), m_bed(servicesFor(m_device), m_device.locale),
      m_window(uikit::UIWindow::create(m_device.size, m_device.safeArea)),
      m_driver(std::make_unique<tooling::Driver>(m_bed.loop(), *m_window)) {
    applyDevice();
    m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
}

TestScreen::~TestScreen() {
    m_window->setRootViewController(nullptr);
    foundation::Bundle::setMain({});
}

void TestScreen::applyDevice() {
    foundation::Locale::setCurrent(foundation::Locale{m_device.locale});
    foundation::Bundle::setMain(m_device.translations);
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = m_device.appearance;
    traits.displayScale = m_device.scale;
    traits.preferredContentSizeCategory = m_device.textSize;
    traits.reduceMotion = m_device.reducesMotion;
    traits.layoutDirection = foundation::LocaleServices::current().layoutDirection(foundation::Locale::current());
    m_window->setSize(m_device.size, m_device.safeArea);
    m_window->setTraits(traits);
}

void TestScreen::present(std::shared_ptr<uikit::UIViewController> controller) {
    m_window->rootViewController()->present(std::move(controller), true);
    m_driver->finishTransitions();
}

bool TestScreen::isShowing() const { return m_window->rootViewController()->presentedViewController() != nullptr; }

void TestScreen::setDevice(TestDevice device) {
    m_device = std::move(device);
    applyDevice();
    m_bed.settle();
}

void TestScreen::wait(double duration_s) {
    m_driver->wait(duration_s);
    m_driver->finishTransitions();
}

Verdict TestScreen::tap(std::string_view what) {
    const auto find = [&](const accessibility::SemanticNode& root) {
        const auto identified = tooling::controlsIdentified(std::string(what))(root);
        return identified.empty() ? tooling::controlsCalled(std::string(what))(root) : identified;
    };
    const auto found = tooling::tapPoint(*m_window, find, [this] { m_bed.settle(); });
    if (found.point) {
        tap(*found.point);
        return Verdict::holds();
    }
    std::string message = found.complaint + " the identifier or the name \"" + std::string(what) + "\"; these are there:";
    for (const std::string& control : found.controls) message += "\n  " + control;
    return Verdict::fails(std::move(message));
}

void TestScreen::tap(geometry::Point point) {
    m_driver->tap(point);
    m_driver->finishTransitions();
}

void TestScreen::drag(geometry::Point from, geometry::Point to, double duration_s) {
    m_driver->drag(from, to, duration_s);
    m_driver->finishTransitions();
}

Verdict TestScreen::press(host::Key key) {
    const bool meantSomething = m_driver->press(key);
    m_driver->finishTransitions();
    return meantSomething ? Verdict::holds() : Verdict::fails("the key means nothing here");
}

rasterbackend::Picture TestScreen::picture() const {
    graphics::DisplayList list;
    m_window->paint(list);
    rasterbackend::RasterSurface surface;
    surface.present(list, m_device.size, m_device.scale);
    return surface.picture();
}

std::vector<std::string> TestScreen::read() const { return tooling::spokenLines(m_window->reading()); }

std::ostream& operator<<(std::ostream& stream, const TestScreen& screen) {
    return stream << "the screen\n" << tooling::screenText(tooling::screenTree(screen.tree()));
}

} // namespace proupsells::screentest

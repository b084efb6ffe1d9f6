// A window, the module in it and a host around it, for runs that are too long to remember anything.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"

namespace proupsells::soak {

enum class Screen { paywall, comparison, store };

inline constexpr Screen allScreens[] = {Screen::paywall, Screen::comparison, Screen::store};
const char* nameOf(Screen screen);

// What a frame took.
struct Frame {
    std::size_t commands = 0;
    std::size_t allocations = 0;

    bool operator==(const Frame&) const = default;
};

class Stage {
public:
    explicit Stage(geometry::Size size = {375, 800});
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    // Presents the paywall. It stands once transitions have ended.
    void present();
    // Presents the paywall and, for another screen, goes on to that as a person or a host does. Takes whole seconds.
    void open(Screen screen);
    // By the close buttons, until nothing is presented. Takes whole seconds, in which all that moves comes to rest.
    void close();

    // Paints it, and reads it as assistive technology does.
    Frame look();
    // Paints it and no more.
    Frame paint();

    // Does what a tap on the control does, if it is there and enabled.
    void operate(const std::string& identifier);
    // To the store page, as a host does.
    void sendWhatIsPro();

    // What is still there once nothing is presented, in words; empty for nothing.
    std::string left() const;
    // What was logged since the last call.
    std::vector<std::string> takeLogs();

    // Null while the paywall is not presented.
    std::shared_ptr<VelaProUpsellViewController> entry() const { return m_entry.lock(); }
    uikit::UIWindow& window() { return *m_window; }
    headless::TestBed& bed() { return m_bed; }

private:
    std::shared_ptr<headless::FakeClipDecoder> m_decoder = std::make_shared<headless::FakeClipDecoder>();
    headless::TestBed m_bed;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::weak_ptr<VelaProUpsellViewController> m_entry;
    std::weak_ptr<UpsellViewModel> m_model;
    graphics::DisplayList m_list;
};

} // namespace proupsells::soak

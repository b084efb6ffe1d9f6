// Keys by the names that toolkits have for them.
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/PixelView.hpp"

namespace proupsells::rasterbackend {
namespace {

using host::Key;

// Remembers the last key.
class KeyListener final : public host::WindowContent {
public:
    void setSize(geometry::Size, geometry::PhysicalInsets) override {}
    void touch(const host::Touch&) override {}
    void scroll(geometry::Point, geometry::Point) override {}
    bool key(Key key, bool) override {
        last = key;
        return true;
    }
    void paint(graphics::DisplayList&) override {}
    bool isAnimating() const override { return false; }
    void setNeedsDisplayHandler(std::function<void()>) override {}
    accessibility::SemanticNode semanticTree() override { return {}; }

    std::optional<Key> last;
};

class KeyNames : public testing::Test {
protected:
    std::optional<Key> keyOf(const char* name, bool isShifted = false) {
        m_content->last.reset();
        const bool isKnown = m_view.key(name, isShifted, false);
        EXPECT_EQ(isKnown, m_content->last.has_value());
        return m_content->last;
    }

private:
    headless::TestBed m_bed;
    std::shared_ptr<KeyListener> m_content = std::make_shared<KeyListener>();
    PixelView m_view{m_content};
};

TEST_F(KeyNames, AreThoseOfToolkitsAndOfBrowsers) {
    const std::pair<Key, std::vector<const char*>> names[] = {
        {Key::escape, {"Escape", "escape", "ESCAPE"}},
        {Key::tab, {"Tab"}},
        {Key::backTab, {"ISO_Left_Tab"}},
        {Key::activate, {"Return", "Enter", "Keypad Enter", "KP_Enter"}},
        {Key::space, {"Space", "space", " "}},
        {Key::up, {"Up", "ArrowUp"}},
        {Key::down, {"Down", "ArrowDown"}},
        {Key::left, {"Left", "ArrowLeft"}},
        {Key::right, {"Right", "ArrowRight"}},
        {Key::pageUp, {"PageUp", "Page Up", "Prior"}},
        {Key::pageDown, {"PageDown", "Page Down", "Next"}},
        {Key::home, {"Home"}},
        {Key::end, {"End"}},
    };
    for (const auto& entry : names)
        for (const char* name : entry.second) EXPECT_EQ(keyOf(name), entry.first) << name;
}

TEST_F(KeyNames, AreNoneOfOtherKeys) {
    for (const char* name : {"", "a", "A", "F1", "Hom", "Homes", "[ome", "@ome", "Delete", "Shift", "Entez"})
        EXPECT_EQ(keyOf(name), std::nullopt) << name;
}

TEST_F(KeyNames, MeanTheKeyBeforeWhereTabIsShifted) {
    EXPECT_EQ(keyOf("Tab", true), Key::backTab);
    EXPECT_EQ(keyOf("ISO_Left_Tab", true), Key::backTab);
    EXPECT_EQ(keyOf("Home", true), Key::home);
}

} // namespace
} // namespace proupsells::rasterbackend

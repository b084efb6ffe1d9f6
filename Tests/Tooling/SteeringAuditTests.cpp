#include <gmock/gmock.h>

#include <set>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Host/WindowContent.hpp"
#include "Platform/UIKit/Controls/UIControl.hpp"
#include "Tooling/SteeringAudit.hpp"

using namespace proupsells;

using accessibility::Role;
using geometry::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A control that tells whether it is open or checked. A stuck one always tells the same.
class Switch : public uikit::UIControl {
public:
    Switch(Role role, std::string identifier, bool isStuck) : m_role(role), m_isStuck(isStuck) {
        accessibilityIdentifier = std::move(identifier);
        addAction(
            [this](UIControl&) {
                if (!m_isStuck) m_isOn = m_role == Role::radioButton || !m_isOn;
            },
            Event::touchUpInside);
    }

protected:
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override {
        UIControl::describe(node, state);
        node.spoken.role = m_role;
        node.spoken.name = accessibilityIdentifier;
        (m_role == Role::disclosure ? node.spoken.isExpanded : node.spoken.isChecked) = m_isOn;
    }

private:
    Role m_role;
    bool m_isStuck;
    bool m_isOn = false;
};

// Below the screen, in something that does not scroll although it says so.
class Unreachable final : public Switch {
public:
    Unreachable() : Switch(Role::button, "below", false) {}

protected:
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override {
        Switch::describe(node, state);
        node.reveal = node.revealWhole = [] {};
    }
};

// Lets the focus go as soon as it comes.
class Trap final : public Switch {
public:
    explicit Trap(std::weak_ptr<uikit::UIWindow> window) : Switch(Role::button, "trap", false), m_window(std::move(window)) {}

protected:
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override {
        Switch::describe(node, state);
        node.reveal = node.revealWhole = [window = m_window] {
            runloop::MainRunLoop::main().schedule(0, [window] { window.lock()->dropFocus(); });
        };
    }

private:
    std::weak_ptr<uikit::UIWindow> m_window;
};

// Two buttons of a host's own content, without any view. Those in `ringsOf` show that they have the focus.
class OwnContent final : public host::WindowContent {
public:
    explicit OwnContent(std::set<std::string> ringsOf) : m_ringsOf(std::move(ringsOf)) {}

    void setSize(geometry::Size, geometry::PhysicalInsets) override {}
    void touch(const host::Touch&) override {}
    void scroll(geometry::Point, geometry::Point) override {}
    bool key(host::Key key, bool) override {
        if (key != host::Key::tab) return false;
        m_focus = m_focus ? (*m_focus + 1) % names.size() : 0;
        return true;
    }
    void dropFocus() override { m_focus.reset(); }
    void paint(graphics::DisplayList& list) override {
        graphics::PaintContext context(list);
        for (std::size_t i = 0; i < names.size(); ++i) {
            context.fillRectangle({}, frameOf(i), graphics::rgb(0xDDDDDD));
            if (m_focus == i && m_ringsOf.contains(names[i]))
                context.fillRectangle({}, frameOf(i).insetBy(-3, -3), graphics::rgb(0x111111));
        }
    }
    bool isAnimating() const override { return false; }
    void setNeedsDisplayHandler(std::function<void()>) override {}
    accessibility::SemanticNode semanticTree() override { return {}; }
    accessibility::ReadingElement reading() override {
        accessibility::ReadingElement dialog{.role = Role::dialog, .name = "Shop"};
        for (std::size_t i = 0; i < names.size(); ++i) {
            accessibility::ReadingElement button{.role = Role::button, .identifier = names[i], .name = names[i]};
            button.frame = button.plate = frameOf(i);
            button.isOnScreen = button.takesFocus = true;
            button.isFocused = m_focus == i;
            button.activate = [] {};
            button.focus = [this, i] { m_focus = i; };
            dialog.children.push_back(std::move(button));
        }
        return dialog;
    }

private:
    static Rect frameOf(std::size_t index) { return {{20, 20 + 100 * double(index)}, {100, 44}}; }

    const std::vector<std::string> names{"buy", "leave"};
    std::set<std::string> m_ringsOf;
    std::optional<std::size_t> m_focus;
};

class SteeringAudit : public testing::Test {
protected:
    SteeringAudit() {
        const auto root = std::make_shared<uikit::UIViewController>();
        window->setRootViewController(root);
        bed.settle();
    }
    ~SteeringAudit() override { window->setRootViewController(nullptr); }

    void add(const std::shared_ptr<uikit::UIView>& view, Rect frame = {{20, 20}, {100, 44}}) {
        view->setFrame(frame);
        window->rootViewController()->view()->addSubview(view);
        bed.settle();
    }
    void addSwitch(Role role, const char* identifier, bool isStuck) { add(std::make_shared<Switch>(role, identifier, isStuck)); }

    std::vector<std::string> details(const std::vector<tooling::Finding>& findings) {
        std::vector<std::string> result;
        for (const auto& finding : findings) result.push_back(std::string(nameOf(finding.rule)) + ": " + finding.detail);
        return result;
    }
    std::vector<std::string> states() { return details(tooling::auditStates(*window, wait)); }
    std::vector<std::string> keyboard() { return details(tooling::auditKeyboard(*window, wait)); }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    tooling::Wait wait = [this](double duration_s) { bed.runFor(duration_s); };
};

TEST_F(SteeringAudit, HasNothingToSayOfWhatTellsItsState) {
    addSwitch(Role::disclosure, "tools", false);
    addSwitch(Role::radioButton, "yearly", false);

    EXPECT_THAT(states(), IsEmpty());
}

TEST_F(SteeringAudit, FindsADisclosureThatTellsTheSameWhenItOpens) {
    addSwitch(Role::disclosure, "tools", true);

    EXPECT_THAT(states(), ElementsAre("wrong state: disclosure tools \"tools\" tells the same state after it was pressed"));
}

TEST_F(SteeringAudit, FindsARadioButtonThatIsNotToldAsChosen) {
    addSwitch(Role::radioButton, "yearly", true);

    EXPECT_THAT(states(), ElementsAre("wrong state: radio button yearly \"yearly\" is not told as checked after it was chosen"));
}

TEST_F(SteeringAudit, LeavesADisclosureAsItWas) {
    addSwitch(Role::disclosure, "tools", false);

    states();

    EXPECT_EQ(window->reading().children.at(0).isExpanded, false);
}

TEST_F(SteeringAudit, HasNothingToSayOfAControlThatKeysComeTo) {
    addSwitch(Role::button, "buy", false);

    EXPECT_THAT(keyboard(), IsEmpty());
}

TEST_F(SteeringAudit, FindsAControlThatIsOutOfSightWithTheFocus) {
    add(std::make_shared<Unreachable>(), {{20, 900}, {100, 44}});

    EXPECT_THAT(keyboard(), ElementsAre("hidden focus: button below \"below\" is out of sight when it has the focus"));
}

TEST_F(SteeringAudit, FindsControlsBehindOneThatLetsTheFocusGo) {
    addSwitch(Role::button, "buy", false);
    add(std::make_shared<Trap>(window), {{20, 100}, {100, 44}});
    add(std::make_shared<Switch>(Role::button, "close", false), {{20, 200}, {100, 44}});

    EXPECT_THAT(keyboard(), ElementsAre("no keyboard: button trap \"trap\" never gets the focus",
                                        "no keyboard: button close \"close\" never gets the focus"));
}

TEST_F(SteeringAudit, FindsAControlThatLooksTheSameWithTheFocus) {
    OwnContent content({"leave"});

    EXPECT_THAT(details(tooling::auditKeyboard(content, {375, 800}, wait)),
                ElementsAre("invisible focus: button buy \"buy\" looks the same with the focus"));
}

TEST_F(SteeringAudit, SeesTheFocusInContentOfAHostsOwn) {
    OwnContent content({"buy", "leave"});

    EXPECT_THAT(details(tooling::auditKeyboard(content, {375, 800}, wait)), IsEmpty());
}

TEST_F(SteeringAudit, FindsAFocusOutsideOfTheWindow) {
    OwnContent content({"buy", "leave"});

    EXPECT_THAT(details(tooling::auditKeyboard(content, {375, 100}, wait)),
                ElementsAre("hidden focus: button leave \"leave\" is out of sight when it has the focus"));
}

} // namespace

// Screens that tests make up for those who read them aloud, and what these are told.
#pragma once

#include <gmock/gmock.h>

#include <QWindow>
#include <functional>
#include <string>
#include <vector>

#include "Backends/Qt/QtAccessibility.hpp"
#include "Platform/Host/WindowContent.hpp"

namespace proupsells::tests {

// A content that tells what a test has it tell.
class ToldContent : public host::WindowContent {
public:
    void setSize(geometry::Size, geometry::PhysicalInsets) override {}
    void touch(const host::Touch&) override {}
    void scroll(geometry::Point, geometry::Point) override {}
    bool key(host::Key, bool) override { return false; }
    void paint(graphics::DisplayList&) override {}
    bool isAnimating() const override { return false; }
    void setNeedsDisplayHandler(std::function<void()>) override {}
    accessibility::SemanticNode semanticTree() override { return {}; }
    accessibility::ReadingElement reading() override {
        ++readCount;
        return dialog;
    }

    accessibility::ReadingElement dialog{
        .role = accessibility::Role::dialog, .id = 1, .name = "Pro", .frame = {{0, 0}, {200, 100}}, .isOnScreen = true};
    int readCount = 0;
};

// A place whose focus the test decides.
class Place final : public qtbackend::AccessiblePlace {
public:
    explicit Place(QWindow& window, bool& hasFocus) : m_window(window), m_hasFocus(hasFocus) {}

    QObject& object() const override { return m_window; }
    QWindow* window() const override { return &m_window; }
    QAccessibleInterface* parent() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::Window; }
    QString name() const override { return "Host"; }
    QRect frame() const override { return {QPoint(7, 9), m_window.size()}; }
    bool isVisible() const override { return m_window.width() > 0; }
    bool hasFocus() const override { return m_hasFocus; }
    void takeFocus() override { m_hasFocus = true; }

private:
    QWindow& m_window;
    bool& m_hasFocus;
};

inline accessibility::ReadingElement told(accessibility::Role role, std::uint64_t id, const std::string& name) {
    return {.role = role, .id = id, .name = name, .frame = {{10, 20}, {100, 44}}, .isOnScreen = true};
}

inline accessibility::ReadingElement button(
    std::uint64_t id, const std::string& name, std::function<void()> activate = [] {}) {
    accessibility::ReadingElement button = told(accessibility::Role::button, id, name);
    button.activate = std::move(activate);
    button.focus = [] {};
    return button;
}

inline accessibility::ReadingElement plan(std::uint64_t id, const std::string& name, bool isChecked, int position) {
    accessibility::ReadingElement plan = told(accessibility::Role::radioButton, id, name);
    plan.isChecked = isChecked;
    plan.position = position;
    plan.count = 2;
    return plan;
}

inline accessibility::ReadingElement plans(bool isFirstChecked) {
    accessibility::ReadingElement group = told(accessibility::Role::radioGroup, 2, "Plans");
    group.children = {plan(3, "Monthly", isFirstChecked, 1), plan(4, "Yearly", !isFirstChecked, 2)};
    return group;
}

inline accessibility::ReadingElement category(bool isExpanded) {
    accessibility::ReadingElement category = button(5, "Layouts");
    category.role = accessibility::Role::disclosure;
    category.isExpanded = isExpanded;
    return category;
}

inline accessibility::ReadingElement pages(int page) {
    accessibility::ReadingElement pager = told(accessibility::Role::pager, 6, "Features");
    pager.value = "page " + std::to_string(page) + " of 3";
    pager.position = page;
    pager.count = 3;
    pager.adjust = [](int) {};
    return pager;
}

// Records what is told of a screen.
class ToldScreen : public testing::Test {
protected:
    ToldScreen() { window.resize(200, 100); }

    // "name: event", with the state that has changed.
    void record(QAccessibleEvent& event) {
        const std::string source = event.accessibleInterface()->text(QAccessible::Name).toStdString() + ": ";
        switch (event.type()) {
        case QAccessible::StateChanged: {
            const QAccessible::State changed = static_cast<QAccessibleStateChangeEvent&>(event).changedStates();
            if (changed.checked) events.push_back(source + "checked");
            if (changed.expanded) events.push_back(source + "expanded");
            if (changed.busy) events.push_back(source + "busy");
            if (changed.disabled) events.push_back(source + "disabled");
            if (changed.offscreen) events.push_back(source + "offscreen");
            break;
        }
        case QAccessible::NameChanged: events.push_back(source + "name"); break;
        case QAccessible::ValueChanged:
            events.push_back(source + "value " + static_cast<QAccessibleValueChangeEvent&>(event).value().toString().toStdString());
            break;
        case QAccessible::DescriptionChanged: events.push_back(source + "description"); break;
        case QAccessible::LocationChanged: events.push_back(source + "location"); break;
        case QAccessible::ObjectCreated:
            events.push_back(source + "came");
            if (recordPlace) recordPlace(event.accessibleInterface());
            break;
        case QAccessible::ObjectDestroyed:
            events.push_back(source + "went");
            if (recordPlace) recordPlace(event.accessibleInterface());
            break;
        case QAccessible::ObjectReorder: events.push_back(source + "order"); break;
        case QAccessible::Focus: events.push_back(source + "focus"); break;
        default: events.push_back(source + "?");
        }
    }

    void show(std::vector<accessibility::ReadingElement> elements) { content.dialog.children = std::move(elements); }
    // Shows it to somebody who has read the screen already.
    void change(std::vector<accessibility::ReadingElement> elements) {
        dialog();
        show(std::move(elements));
        accessibility.update();
    }

    QAccessibleInterface* dialog() { return accessibility.root()->child(0); }
    QAccessibleInterface* element(int index) { return dialog()->child(index); }
    static std::vector<std::string> names(QAccessibleInterface* around) {
        std::vector<std::string> names;
        for (int index = 0; index < around->childCount(); ++index)
            names.push_back(around->child(index)->text(QAccessible::Name).toStdString());
        return names;
    }

    bool isListening = true, hasFocus = false;
    std::vector<std::string> events;
    std::function<void(QAccessibleInterface*)> recordPlace; // told what has come or is about to go
    QWindow window;
    ToldContent content;
    qtbackend::QtAccessibility accessibility{
        std::make_unique<Place>(window, hasFocus),
        content,
        {.isThere = [this] { return isListening; }, .tell = [this](QAccessibleEvent& event) { record(event); }}};
};

} // namespace proupsells::tests

// What is said over the accessibility bus. Where a bus is, its daemon only hands it on.
#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QtGui/qaccessible.h>

#include "Backends/Qt/AtspiSignals.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Qt/SignalListener.hpp"

using namespace proupsells;

using qtbackend::tellOverAtspi;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// An accessible thing that says what a test has it say.
class Thing final : public QAccessibleInterface, public QAccessibleValueInterface {
public:
    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return around; }
    QAccessibleInterface* child(int index) const override { return inside[std::size_t(index)]; }
    int childCount() const override { return int(inside.size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return int(std::find(inside.begin(), inside.end(), child) - inside.begin());
    }
    QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name ? "Subscribe" : text == QAccessible::Description ? "2 of 3" : "?";
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override { return now; }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
    }
    QVariant currentValue() const override { return 7; }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return 9; }
    QVariant minimumValue() const override { return 1; }
    QVariant minimumStepSize() const override { return 1; }

    Thing* around = nullptr;
    std::vector<Thing*> inside;
    QAccessible::State now;
};

class AtspiSignals : public testing::Test {
protected:
    // Both belong to Qt, which names them by their numbers.
    AtspiSignals() : group(new Thing), first(new Thing), second(new Thing) {
        group->inside = {first, second};
        first->around = second->around = group;
        for (Thing* thing : {group, first, second}) QAccessible::registerAccessibleInterface(thing);
    }
    ~AtspiSignals() override {
        for (Thing* thing : {first, second, group}) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(thing));
        QDBusConnection::disconnectFromPeer("a11y");
    }

    void connect() {
        QDBusConnection::connectToPeer(listener.address(), "a11y");
        ASSERT_TRUE(tests::handleEventsUntil([this] { return listener.isConnected(); }));
    }
    static bool tell(Thing* source, QAccessible::Event type) {
        QAccessibleEvent event(source, type);
        return tellOverAtspi(event);
    }
    static bool tellValue(Thing* source, int value) {
        QAccessibleValueChangeEvent event(source, value);
        return tellOverAtspi(event);
    }
    static bool tellChange(Thing* source, const QAccessible::State& changed) {
        QAccessibleStateChangeEvent event(source, changed);
        return tellOverAtspi(event);
    }
    static std::string path(Thing* thing) { return "/org/a11y/atspi/accessible/" + std::to_string(QAccessible::uniqueId(thing)); }
    static std::string said(Thing* source, const std::string& member, const std::string& arguments) {
        return path(source) + " " + member + "(siiv(so)): " + arguments + ", /org/a11y/atspi/accessible/root";
    }
    // So many signals, and no other before the one that is sent now.
    std::vector<std::string> heard(std::size_t count) {
        tell(group, QAccessible::DescriptionChanged);
        EXPECT_TRUE(tests::handleEventsUntil([&] { return listener.heard.size() > count; }));
        std::vector<std::string> heard = listener.heard;
        EXPECT_EQ(heard.back(), said(group, "PropertyChange", "accessible-description, 0, 0, 2 of 3"));
        heard.pop_back();
        return heard;
    }

    tests::SignalListener listener{"org.a11y.atspi.Event.Object"};
    Thing *group, *first, *second;
};

} // namespace

TEST_F(AtspiSignals, AreLeftToQtWhereThereIsNoBus) {
    EXPECT_FALSE(tell(first, QAccessible::NameChanged));
    EXPECT_FALSE(tell(first, QAccessible::ObjectCreated));
}

TEST_F(AtspiSignals, SayWhatAThingIsCalledAndWhatItsValueIs) {
    connect();

    EXPECT_TRUE(tell(first, QAccessible::NameChanged));
    EXPECT_TRUE(tell(first, QAccessible::DescriptionChanged));
    EXPECT_TRUE(tellValue(second, 7));

    EXPECT_THAT(heard(3), ElementsAre(said(first, "PropertyChange", "accessible-name, 0, 0, Subscribe"),
                                      said(first, "PropertyChange", "accessible-description, 0, 0, 2 of 3"),
                                      said(second, "PropertyChange", "accessible-value, 0, 0, 7")));
}

TEST_F(AtspiSignals, SayAtWhichPlaceAThingComesAndGoes) {
    connect();

    EXPECT_TRUE(tell(second, QAccessible::ObjectCreated));
    EXPECT_TRUE(tell(first, QAccessible::ObjectDestroyed));

    EXPECT_THAT(heard(2), ElementsAre(said(group, "ChildrenChanged", "add, 1, 0, " + path(second)),
                                      said(group, "ChildrenChanged", "remove, 0, 0, " + path(first))));
}

TEST_F(AtspiSignals, SayNothingOfWhatStandsInNothing) {
    connect();

    EXPECT_TRUE(tell(group, QAccessible::ObjectCreated));

    EXPECT_THAT(heard(0), IsEmpty());
}

TEST_F(AtspiSignals, HaveAllGoAndComeBackInANewOrder) {
    connect();

    EXPECT_TRUE(tell(group, QAccessible::ObjectReorder));

    EXPECT_THAT(heard(4), ElementsAre(said(group, "ChildrenChanged", "remove, 0, 0, " + path(first)),
                                      said(group, "ChildrenChanged", "remove, 1, 0, " + path(second)),
                                      said(group, "ChildrenChanged", "add, 0, 0, " + path(first)),
                                      said(group, "ChildrenChanged", "add, 1, 0, " + path(second))));
}

TEST_F(AtspiSignals, SayWhatIsExpandedAndWhatIsCollapsed) {
    connect();
    QAccessible::State changed;
    changed.expanded = true;

    first->now.expanded = true;
    EXPECT_TRUE(tellChange(first, changed));
    first->now.expanded = false;
    first->now.collapsed = true;
    EXPECT_TRUE(tellChange(first, changed));

    EXPECT_THAT(heard(4), ElementsAre(said(first, "StateChanged", "expanded, 1, 0, " + path(first)),
                                      said(first, "StateChanged", "collapsed, 0, 0, " + path(first)),
                                      said(first, "StateChanged", "expanded, 0, 0, " + path(first)),
                                      said(first, "StateChanged", "collapsed, 1, 0, " + path(first))));
}

TEST_F(AtspiSignals, SayWhatIsBusyAndWhatIsInSight) {
    connect();
    QAccessible::State busy, offscreen;
    busy.busy = true;
    offscreen.offscreen = true;

    second->now.busy = true;
    EXPECT_TRUE(tellChange(second, busy));
    EXPECT_TRUE(tellChange(second, offscreen));
    second->now.offscreen = true;
    EXPECT_TRUE(tellChange(second, offscreen));

    EXPECT_THAT(heard(5), ElementsAre(said(second, "StateChanged", "busy, 1, 0, " + path(second)),
                                      said(second, "StateChanged", "visible, 1, 0, " + path(second)),
                                      said(second, "StateChanged", "showing, 1, 0, " + path(second)),
                                      said(second, "StateChanged", "visible, 0, 0, " + path(second)),
                                      said(second, "StateChanged", "showing, 0, 0, " + path(second))));
}

TEST_F(AtspiSignals, LeaveToQtWhatItSaysWell) {
    connect();
    QAccessible::State checked;
    checked.checked = true;

    EXPECT_FALSE(tellChange(first, checked));
    EXPECT_FALSE(tell(first, QAccessible::Focus));
    EXPECT_FALSE(tell(first, QAccessible::LocationChanged));

    EXPECT_THAT(heard(0), IsEmpty());
}

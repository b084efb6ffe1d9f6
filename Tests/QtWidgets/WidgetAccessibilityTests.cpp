// What somebody hears of a widget's screen, and when.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QLineEdit>

#include "Tests/QtWidgets/ShownWidget.hpp"

using namespace proupsells;

using testing::ElementsAre;
using tests::settle;
using tests::Widgets;

TEST_F(Widgets, TellNothingWhileNobodySeesThem) {
    QWidget window;
    show(&window);
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(widget);
    ASSERT_EQ(tree->childCount(), 1);
    widget->hide();
    settle();
    EXPECT_EQ(tree->childCount(), 0);
    widget->show();
    settle();

    EXPECT_EQ(tree->childCount(), 1);
}

TEST_F(Widgets, HangTheirAccessibleTreeIntoTheHostsOwn) {
    QWidget window;
    show(&window);
    QAccessibleInterface* const around = QAccessible::queryAccessibleInterface(&window);
    ASSERT_EQ(around->childCount(), 1);
    QAccessibleInterface* const tree = around->child(0);
    ASSERT_EQ(tree->childCount(), 1);
    QAccessibleInterface* const dialog = tree->child(0);
    ASSERT_EQ(dialog->childCount(), 2);

    EXPECT_EQ(tree->parent()->object(), &window);
    EXPECT_EQ(dialog->child(1)->text(QAccessible::Name), "second");
    EXPECT_EQ(dialog->child(1)->rect(), QRect(widget->mapToGlobal(QPoint(50, 0)), QSize(50, 50)));
    dialog->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(screen->presses, ElementsAre("second"));
}

TEST_F(Widgets, TellAssistiveTechnologyWhereThingsAreAfterAChangeOfSize) {
    class WideButton : public uikit::UIViewController {
        void viewDidLoad() override {
            m_button->accessibilityLabel = "wide";
            view()->addSubview(m_button);
        }
        void viewDidLayoutSubviews() override { m_button->setFrame(view()->bounds()); }

        std::shared_ptr<uikit::UIButton> m_button = std::make_shared<uikit::UIButton>();
    };
    show();
    widget->setController(std::make_shared<WideButton>());
    QAccessible::setActive(true);
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(widget);
    ASSERT_EQ(tree->childCount(), 1);
    ASSERT_EQ(tree->child(0)->childCount(), 1);
    widget->resize(60, 90);
    settle();
    QAccessible::setActive(false);

    EXPECT_EQ(tree->child(0)->child(0)->rect().size(), QSize(60, 90));
}

// What is told is read once for each change, and a name that nobody sees changes nothing that is seen.
TEST_F(Widgets, AreReadAgainWhenTheFocusComesOrGoes) {
    QWidget window;
    QLineEdit field(&window);
    show(&window);
    window.activateWindow();
    field.setFocus();
    settle();
    QAccessibleInterface* const tree = QAccessible::queryAccessibleInterface(widget);
    const auto firstName = [&] { return tree->child(0)->child(0)->text(QAccessible::Name).toStdString(); };
    const auto rename = [&](const std::string& name) { screen->view()->subviews().front()->accessibilityLabel = name; };
    ASSERT_EQ(firstName(), "first");
    rename("other");
    settle();
    EXPECT_EQ(firstName(), "first");

    widget->setFocus(Qt::OtherFocusReason);
    settle();
    EXPECT_EQ(firstName(), "other");

    rename("another");
    field.setFocus();
    settle();
    EXPECT_EQ(firstName(), "another");
}

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPalette>
#include <QPointingDevice>
#include <QProxyStyle>

#include "Backends/Qt/DesktopSettings.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Tests/QtWidgets/ShownWidget.hpp"

using namespace proupsells;

using qtwidgets::ControllerWidget;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::settle;
using tests::TwoButtons;
using tests::Widgets;

TEST_F(Widgets, ShowAControllerAtTheirSize) {
    show();

    EXPECT_EQ(screen->view()->frame().size, (geometry::Size{100, 80}));
    for (const int x : {0, 99}) EXPECT_EQ(pixel(x, 79), 0xFF0000u) << x;

    widget->resize(60, 90);
    settle();
    EXPECT_EQ(screen->view()->frame().size, (geometry::Size{60, 90}));
    EXPECT_EQ(widget->grab().size(), QSize(60, 90));
}

TEST_F(Widgets, PreferTheSizeThatTheirControllerPrefers) {
    show();
    EXPECT_EQ(widget->sizeHint(), QSize(375, 800));
    EXPECT_EQ(widget->minimumSizeHint(), QSize(320, 480));
    EXPECT_EQ(widget->focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(widget->hasMouseTracking());
    const auto small = std::make_shared<uikit::UIViewController>();
    small->setPreferredContentSize({200, 99.5});
    widget->setController(small);

    EXPECT_EQ(widget->sizeHint(), QSize(200, 100));
    for (const geometry::Size none : {geometry::Size{200, 0}, {0, 200}, {-1, 200}}) {
        small->setPreferredContentSize(none);
        EXPECT_EQ(widget->sizeHint(), QSize(375, 800)) << none.width;
    }
    small->setPreferredContentSize({0.5, 1});
    EXPECT_EQ(widget->sizeHint(), QSize(1, 1));
    widget->setController(nullptr);
    EXPECT_EQ(widget->sizeHint(), QSize(375, 800));
}

TEST_F(Widgets, MayBeEmpty) {
    screen = nullptr;
    show();

    EXPECT_EQ(widget->controller(), nullptr);
    tests::click(*widget, {10, 10});
    tests::pressKey(*widget, Qt::Key_Escape);
    EXPECT_EQ(pixel(5, 5), 0xFFFFFFu);
}

TEST_F(Widgets, ShowWhatHasChanged) {
    show();
    screen->view()->setBackgroundColor(uikit::UIColor{"blue", graphics::rgb(0x0000FF), graphics::rgb(0x0000FF)});
    settle();

    EXPECT_EQ(pixel(50, 70), 0x0000FFu);
}

TEST_F(Widgets, HandOnClicks) {
    show();
    tests::click(*widget, {10, 10});
    tests::mouse(*widget, QEvent::MouseButtonDblClick, {60, 10});
    tests::mouse(*widget, QEvent::MouseButtonRelease, {60, 10});

    EXPECT_THAT(screen->presses, ElementsAre("first", "second"));
}

TEST_F(Widgets, TellTheContainerThatTheyPreferAnotherSize) {
    QWidget container;
    auto* const layout = new QHBoxLayout(&container);
    layout->setContentsMargins(0, 0, 0, 0);
    widget = new ControllerWidget(screen);
    layout->addWidget(widget);
    EXPECT_EQ(container.sizeHint(), QSize(375, 800));
    const auto small = std::make_shared<uikit::UIViewController>();
    small->setPreferredContentSize({400, 500});
    widget->setController(small);

    EXPECT_EQ(container.sizeHint(), QSize(400, 500));
    delete widget;
}

TEST_F(Widgets, HandOnFingers) {
    show();
    QPointingDevice device("screen", 1, QInputDevice::DeviceType::TouchScreen, QPointingDevice::PointerType::Finger,
                           QInputDevice::Capability::Position, 5, 0);
    for (const auto& [type, state] :
         {std::pair{QEvent::TouchBegin, QEventPoint::Pressed}, {QEvent::TouchEnd, QEventPoint::Released}}) {
        // Without Qt's delivery a point has no place but the corner.
        QTouchEvent event(type, &device, {}, {QEventPoint(7, state, {}, {})});
        event.setAccepted(false);
        QCoreApplication::sendEvent(widget, &event);
        EXPECT_TRUE(event.isAccepted());
    }

    EXPECT_THAT(screen->presses, ElementsAre("first"));
}

TEST_F(Widgets, GiveUpAPressWhenTheyAreHidden) {
    show();
    tests::mouse(*widget, QEvent::MouseButtonPress, {10, 10});
    widget->hide();
    widget->show();
    tests::mouse(*widget, QEvent::MouseButtonRelease, {10, 10});

    EXPECT_THAT(screen->presses, IsEmpty());
}

TEST_F(Widgets, ShowAHandAsSoonAsTheMouseComesIn) {
    show();
    QEnterEvent enters({10, 10}, {10, 10}, widget->mapToGlobal(QPointF(10, 10)));
    QCoreApplication::sendEvent(widget, &enters);

    EXPECT_EQ(widget->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Widgets, ShowAHandOverWhatCanBeTapped) {
    show();
    const auto hover = [&](QPointF at) {
        QMouseEvent moves(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &moves);
        return widget->cursor().shape();
    };

    EXPECT_EQ(hover({10, 10}), Qt::PointingHandCursor);
    EXPECT_EQ(hover({50, 70}), Qt::ArrowCursor);
    EXPECT_EQ(hover({60, 10}), Qt::PointingHandCursor);
    QEvent leaves(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &leaves);
    EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Widgets, TakeTheHandAwayWithTheControl) {
    show();
    QEnterEvent enters(QPointF(10, 10), QPointF(10, 10), QPointF(10, 10));
    QCoreApplication::sendEvent(widget, &enters);
    EXPECT_EQ(widget->cursor().shape(), Qt::PointingHandCursor);

    widget->setController(std::make_shared<uikit::UIViewController>());
    settle();

    EXPECT_EQ(widget->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Widgets, LetTheFocusInAndOut) {
    QWidget window;
    QLineEdit before(&window), after(&window);
    show(&window);
    QWidget::setTabOrder(&before, widget);
    QWidget::setTabOrder(widget, &after);
    window.activateWindow();
    before.setFocus();
    settle();

    // What Qt does for Tab, and for Shift and Tab.
    const auto tab = [&](int key) { tests::pressKey(*QApplication::focusWidget(), key); };
    tab(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), widget);
    tests::pressKey(*widget, Qt::Key_Return);
    tab(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), widget);
    tests::pressKey(*widget, Qt::Key_Space);
    tab(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
    tab(Qt::Key_Backtab);
    tests::pressKey(*widget, Qt::Key_Space);
    tab(Qt::Key_Backtab);
    tab(Qt::Key_Backtab);

    EXPECT_EQ(QApplication::focusWidget(), &before);
    EXPECT_THAT(screen->presses, ElementsAre("first", "second", "second"));
}

TEST_F(Widgets, KeepTheFocusOfTheirControlsWhileAnotherWindowOrAMenuIsInFront) {
    const auto pressesAfter = [&](Qt::FocusReason reason) {
        QWidget window;
        screen = std::make_shared<TwoButtons>();
        show(&window);
        tests::pressKey(*widget, Qt::Key_Tab);
        for (const QEvent::Type type : {QEvent::FocusOut, QEvent::FocusIn}) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(widget, &event);
        }
        tests::pressKey(*widget, Qt::Key_Space);
        delete widget;
        return screen->presses.size();
    };

    EXPECT_EQ(pressesAfter(Qt::ActiveWindowFocusReason), 1u);
    EXPECT_EQ(pressesAfter(Qt::PopupFocusReason), 1u);
    EXPECT_EQ(pressesAfter(Qt::MouseFocusReason), 0u);
    EXPECT_EQ(pressesAfter(Qt::OtherFocusReason), 0u);
}

TEST_F(Widgets, LeaveAloneTheKeysThatMeanNothingToThem) {
    struct Around : QWidget {
        void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
        std::vector<int> keys;
    } around;
    show(&around);
    tests::pressKey(*widget, Qt::Key_Escape);
    tests::pressKey(*widget, Qt::Key_F1);

    EXPECT_THAT(around.keys, ElementsAre(Qt::Key_Escape, Qt::Key_F1));
}

TEST_F(Widgets, FollowThePaletteAndTheDirectionUnlessTheHostDecides) {
    show();
    QPalette dark = widget->palette();
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    widget->setPalette(dark);
    widget->setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_EQ(pixel(50, 70), 0x400000u);
    EXPECT_EQ(widget->uiWindow().traits().layoutDirection, geometry::LayoutDirection::rightToLeft);

    widget->setTraits({.colorScheme = graphics::ColorScheme::light,
                       .layoutDirection = geometry::LayoutDirection::leftToRight,
                       .reducesMotion = true,
                       .textSize = graphics::ContentSizeCategory::extraExtraLarge});
    settle();
    EXPECT_EQ(pixel(50, 70), 0xFF0000u);
    const uikit::UITraitCollection& traits = widget->uiWindow().traits();
    EXPECT_EQ(traits.layoutDirection, geometry::LayoutDirection::leftToRight);
    EXPECT_TRUE(traits.reduceMotion);
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::extraExtraLarge);
}

// A style whose widgets move for so long.
class TimedStyle : public QProxyStyle {
public:
    explicit TimedStyle(int duration_ms) : m_duration_ms(duration_ms) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* answer) const override {
        return hint == SH_Widget_Animation_Duration ? m_duration_ms : QProxyStyle::styleHint(hint, option, widget, answer);
    }

private:
    int m_duration_ms;
};

TEST_F(Widgets, MoveLessInAStyleThatDoesNotMove) {
    TimedStyle still(0), quick(1);
    show();
    widget->setStyle(&still);
    EXPECT_TRUE(widget->uiWindow().traits().reduceMotion);
    widget->setStyle(&quick);
    EXPECT_FALSE(widget->uiWindow().traits().reduceMotion);
    delete widget;
}

TEST_F(Widgets, FollowTheDesktopUnlessTheHostDecides) {
    auto& desktop = qtbackend::DesktopSettings::shared();
    show();
    const uikit::UITraitCollection& traits = widget->uiWindow().traits();
    desktop.adopt("org.gnome.desktop.interface", "text-scaling-factor", 2.0);
    desktop.adopt("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::accessibilityLarge);
    EXPECT_TRUE(traits.reduceMotion);

    widget->setTraits({.reducesMotion = false, .textSize = graphics::ContentSizeCategory::large});
    EXPECT_EQ(traits.preferredContentSizeCategory, graphics::ContentSizeCategory::large);
    EXPECT_FALSE(traits.reduceMotion);

    // Nobody listens any more.
    delete widget;
    desktop.adopt("org.gnome.desktop.interface", "text-scaling-factor", 1.0);
    desktop.adopt("org.gnome.desktop.interface", "enable-animations", true);
}

TEST_F(Widgets, RunNothingWhileTheyAreHidden) {
    show();
    EXPECT_TRUE(widget->uiWindow().isSeen());
    widget->hide();
    EXPECT_FALSE(widget->uiWindow().isSeen());
    const std::uint64_t paints = widget->uiWindow().paintCount();
    screen->view()->setNeedsDisplay();
    settle();
    EXPECT_EQ(widget->uiWindow().paintCount(), paints);
    widget->show();
    settle();

    EXPECT_GT(widget->uiWindow().paintCount(), paints);
}

TEST_F(Widgets, MayBeReparented) {
    QWidget first, second;
    second.resize(200, 200);
    show(&first);
    widget->setParent(&second);
    widget->show();
    second.show();
    settle();
    tests::click(*widget, {10, 10});

    EXPECT_EQ(pixel(50, 70), 0xFF0000u);
    EXPECT_THAT(screen->presses, ElementsAre("first"));
}

TEST_F(Widgets, LieUnderTheSiblingsInFrontOfThem) {
    QWidget window;
    window.resize(100, 80);
    show(&window);
    QWidget cover(&window);
    cover.setGeometry(0, 60, 100, 20);
    cover.setAutoFillBackground(true);
    cover.setPalette(QPalette(Qt::green));
    cover.show();
    screen->view()->setNeedsDisplay();
    settle();
    const QImage shown = window.grab().toImage();

    EXPECT_EQ(shown.pixel(50, 55) & 0xFFFFFF, 0xFF0000u);
    EXPECT_EQ(shown.pixel(50, 70), QPalette(Qt::green).color(QPalette::Window).rgb());
}

TEST_F(Widgets, MayBeDeletedFromInsideACallback) {
    show();
    screen->whenPressed = [this] { delete widget; };
    tests::click(*widget, {10, 10});
    EXPECT_TRUE(widget.isNull());

    show();
    tests::pressKey(*widget, Qt::Key_Tab);
    tests::pressKey(*widget, Qt::Key_Return);
    EXPECT_TRUE(widget.isNull());

    show();
    runloop::MainRunLoop::main().schedule(0, [this] { delete widget; });
    settle();
    EXPECT_TRUE(widget.isNull());
}

TEST_F(Widgets, LetTheirControllerGo) {
    show();
    const std::weak_ptr<TwoButtons> watched = screen;
    screen.reset();
    delete widget;

    EXPECT_TRUE(watched.expired());
}

TEST_F(Widgets, StandSideBySide) {
    QWidget window;
    const auto other = std::make_shared<TwoButtons>();
    show(&window);
    ControllerWidget second(other, &window);
    second.setGeometry(100, 0, 100, 80);
    second.show();
    settle();
    tests::click(second, {60, 10});
    tests::click(*widget, {10, 10});

    EXPECT_THAT(screen->presses, ElementsAre("first"));
    EXPECT_THAT(other->presses, ElementsAre("second"));
}

TEST_F(Widgets, TellTheirContainerWhenTheControllerIsToGo) {
    show();
    int asked = 0;
    QObject::connect(widget, &ControllerWidget::dismissalRequested, [&] { ++asked; });
    screen->dismiss(true);

    EXPECT_EQ(asked, 1);
}

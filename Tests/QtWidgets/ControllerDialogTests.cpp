#include <gtest/gtest.h>

#include "Tests/QtWidgets/Shop.hpp"

using namespace proupsells;

using qtwidgets::ControllerDialog;
using testing::ElementsAre;
using tests::handleEventsUntil;

namespace {

class Dialogs : public testing::Test {
protected:
    void open() {
        dialog = new ControllerDialog(tests::newPaywall(purchases));
        QObject::connect(dialog, &QDialog::finished, [this] { ++finished; });
        dialog->open();
        ASSERT_TRUE(handleEventsUntil([this] { return dialog->widget().uiWindow().paintCount() > 0; }));
    }
    ~Dialogs() override { delete dialog; }

    std::shared_ptr<tests::Purchases> purchases = std::make_shared<tests::Purchases>();
    QPointer<ControllerDialog> dialog;
    int finished = 0;
};

} // namespace

TEST_F(Dialogs, ShowAPaywallAsLargeAsItPrefers) {
    open();

    EXPECT_EQ(dialog->size(), QSize(375, 800));
}

TEST_F(Dialogs, CloseByTheScreensOwnButton) {
    open();
    tests::clickOn(dialog->widget(), "close");

    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(finished, 1);
    EXPECT_THAT(purchases->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Dialogs, CloseByEscape) {
    open();
    tests::pressKey(dialog->widget(), Qt::Key_Escape);

    EXPECT_EQ(finished, 1);
    EXPECT_THAT(purchases->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Dialogs, CloseByTheWindowsButton) {
    open();
    dialog->close();

    EXPECT_EQ(finished, 1);
    EXPECT_THAT(purchases->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Dialogs, CloseByTheWindowsButtonWithAScreenOverThePaywall) {
    open();
    tests::clickOn(dialog->widget(), "comparePlans");
    ASSERT_TRUE(handleEventsUntil([this] { return !dialog->widget().uiWindow().isTransitioning(); }));
    dialog->close();

    EXPECT_EQ(finished, 1);
    EXPECT_THAT(purchases->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Dialogs, CloseWhenTheHostDismissesThePaywallAfterAPurchase) {
    open();
    tests::clickOn(dialog->widget(), "subscribe");

    EXPECT_EQ(purchases->bought, "pro.monthly");
    EXPECT_EQ(finished, 1);
    EXPECT_THAT(purchases->reasons, ElementsAre(ClosingReason::purchased));
}

TEST_F(Dialogs, MayBeDeletedWhenTheScreenHasClosed) {
    open();
    purchases->whenClosed = [this] { delete dialog; };
    tests::pressKey(dialog->widget(), Qt::Key_Escape);

    EXPECT_TRUE(dialog.isNull());
}

TEST_F(Dialogs, OpenAgainAndAgain) {
    for (int round = 0; round < 20; ++round) {
        open();
        dialog->close();
        delete dialog;
    }

    EXPECT_EQ(finished, 20);
    EXPECT_EQ(purchases->reasons.size(), 20u);
}

TEST_F(Dialogs, EndAModalLoop) {
    ControllerDialog modal(tests::newPaywall(purchases));
    QTimer::singleShot(0, [&] { tests::pressKey(modal.widget(), Qt::Key_Escape); });

    EXPECT_EQ(modal.exec(), QDialog::Rejected);
}

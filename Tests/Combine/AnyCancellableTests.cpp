#include <gtest/gtest.h>

#include <utility>

#include "Platform/Combine/AnyCancellable.hpp"

using namespace proupsells;

using combine::AnyCancellable;

namespace {

class Token : public testing::Test {
protected:
    AnyCancellable token() {
        return AnyCancellable{[this] { ++cancellations; }};
    }
    int cancellations = 0;
};

TEST_F(Token, CancelsWhenItIsDestroyed) {
    { const AnyCancellable subscription = token(); }

    EXPECT_EQ(cancellations, 1);
}

TEST_F(Token, CancelsOnlyOnce) {
    {
        AnyCancellable subscription = token();
        subscription.cancel();
        subscription.cancel();
        EXPECT_FALSE(subscription);
    }

    EXPECT_EQ(cancellations, 1);
}

TEST_F(Token, MovesWithoutCancelling) {
    AnyCancellable first = token();

    AnyCancellable second = std::move(first);

    EXPECT_EQ(cancellations, 0);
    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
}

TEST_F(Token, CancelsWhatItHeldWhenAnotherIsAssigned) {
    int otherCancellations = 0;
    AnyCancellable subscription = token();

    subscription = AnyCancellable{[&] { ++otherCancellations; }};

    EXPECT_EQ(cancellations, 1);
    EXPECT_EQ(otherCancellations, 0);
}

TEST_F(Token, CancelsWhenAnEmptyOneIsAssigned) {
    AnyCancellable subscription = token();

    subscription = {};

    EXPECT_EQ(cancellations, 1);
}

TEST_F(Token, KeepsItsSubscriptionWhenAssignedToItself) {
    AnyCancellable subscription = token();
    AnyCancellable& same = subscription;

    subscription = std::move(same);

    EXPECT_EQ(cancellations, 0);
    EXPECT_TRUE(subscription);
}

TEST_F(Token, DoesNothingWhenEmpty) {
    AnyCancellable empty;

    empty.cancel();

    EXPECT_FALSE(empty);
}

TEST_F(Token, MayBeLookedAtAndReplacedWhileItCancels) {
    AnyCancellable subscription;
    bool wasEmpty = false;
    subscription = AnyCancellable{[&] {
        wasEmpty = !subscription;
        subscription = token();
    }};

    subscription.cancel();

    EXPECT_TRUE(wasEmpty);
    EXPECT_TRUE(subscription);
    EXPECT_EQ(cancellations, 0);
}

} // namespace

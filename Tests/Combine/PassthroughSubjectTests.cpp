#include <gmock/gmock.h>

#include <array>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Platform/Combine/PassthroughSubject.hpp"
#include "Tests/Support/AllocationCounter.hpp"

using namespace proupsells;

using combine::AnyCancellable;
using combine::PassthroughSubject;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Subject : public testing::Test {
protected:
    PassthroughSubject<int>::Receiver noting(std::string name) {
        return [this, name = std::move(name)](int value) { note(name, value); };
    }
    void note(const std::string& name, int value) { diary.push_back(name + std::to_string(value)); }

    PassthroughSubject<int> subject;
    std::vector<std::string> diary;
};

TEST_F(Subject, DeliversAtOnceInTheOrderOfSubscription) {
    const auto a = subject.sink(noting("a"));
    const auto b = subject.sink(noting("b"));

    subject.send(1);
    EXPECT_THAT(diary, ElementsAre("a1", "b1"));

    subject.send(2);
    EXPECT_THAT(diary, ElementsAre("a1", "b1", "a2", "b2"));
}

TEST_F(Subject, HasNoMemory) {
    subject.send(1);

    const auto late = subject.sink(noting("late"));

    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Subject, DeliversNothingAfterCancellation) {
    auto a = subject.sink(noting("a"));
    const auto b = subject.sink(noting("b"));

    a.cancel();
    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("b1"));
}

TEST_F(Subject, DeliversNothingWithoutAToken) {
    static_cast<void>(subject.sink(noting("dropped")));

    subject.send(1);

    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Subject, SubscribingAgainGoesToTheEnd) {
    auto a = subject.sink(noting("a"));
    const auto b = subject.sink(noting("b"));

    a = subject.sink(noting("a"));
    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("b1", "a1"));
}

TEST_F(Subject, ShowsANewSubscriberOnlyLaterValues) {
    AnyCancellable inner;
    const auto outer = subject.sink([&](int value) {
        note("outer", value);
        if (!inner) inner = subject.sink(noting("inner"));
    });

    subject.send(1);
    EXPECT_THAT(diary, ElementsAre("outer1"));

    subject.send(2);
    EXPECT_THAT(diary, ElementsAre("outer1", "outer2", "inner2"));
}

TEST_F(Subject, SurvivesManySubscriptionsInsideOneDelivery) {
    std::vector<AnyCancellable> many;
    const auto first = subject.sink([&](int) {
        for (int i = 0; i < 1000; ++i) many.push_back(subject.sink(noting("x")));
    });
    const auto second = subject.sink(noting("second"));

    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("second1"));
}

TEST_F(Subject, DeliversANestedValueAtOnceAndInFull) {
    const auto a = subject.sink([&](int value) {
        note("a", value);
        if (value < 3) subject.send(value + 1);
    });
    const auto b = subject.sink(noting("b"));

    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("a1", "a2", "a3", "b3", "b2", "b1"));
}

TEST_F(Subject, ShowsANestedValueToASubscriberOfTheOuterDelivery) {
    AnyCancellable inner;
    const auto outer = subject.sink([&](int value) {
        if (value > 1) return;
        inner = subject.sink(noting("inner"));
        subject.send(2);
    });

    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("inner2"));
}

TEST_F(Subject, KeepsAValueFromOneWhoIsCancelledDuringItsDelivery) {
    AnyCancellable victim;
    const auto a = subject.sink([&](int) { victim.cancel(); });
    victim = subject.sink(noting("victim"));
    const auto c = subject.sink(noting("c"));

    subject.send(1);
    subject.send(2);

    EXPECT_THAT(diary, ElementsAre("c1", "c2"));
}

TEST_F(Subject, KeepsTheOuterValueFromOneWhoIsCancelledInANestedDelivery) {
    AnyCancellable victim;
    const auto a = subject.sink([&](int value) {
        if (value == 1) subject.send(2);
        if (value == 2) victim.cancel();
    });
    victim = subject.sink(noting("victim"));

    subject.send(1);

    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Subject, LetsAReceiverCancelItself) {
    AnyCancellable self;
    self = subject.sink([&, held = std::string(100, 'x')](int value) {
        self.cancel();
        note(held.size() == 100 ? "alive" : "dead", value); // the receiver outlives its own cancellation
    });
    const auto other = subject.sink(noting("other"));

    subject.send(1);
    subject.send(2);

    EXPECT_THAT(diary, ElementsAre("alive1", "other1", "other2"));
}

TEST_F(Subject, LetsAReceiverDestroyIt) {
    auto doomed = std::make_unique<PassthroughSubject<int>>();
    const auto a = doomed->sink([&](int value) {
        doomed.reset();
        note("a", value);
    });
    const auto b = doomed->sink(noting("b"));

    doomed->send(1);

    EXPECT_THAT(diary, ElementsAre("a1", "b1"));
    EXPECT_FALSE(doomed);
}

TEST_F(Subject, LetsATokenOutliveIt) {
    auto doomed = std::make_unique<PassthroughSubject<int>>();
    auto token = doomed->sink(noting("a"));

    doomed.reset();
    token.cancel();

    EXPECT_FALSE(token);
}

TEST_F(Subject, LetsGoOfAReceiverWithItsSubscription) {
    const auto held = std::make_shared<int>(0);
    auto token = subject.sink([held](int) {});
    EXPECT_EQ(held.use_count(), 2);

    token.cancel();

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Subject, LetsGoOfAReceiverThatWasCancelledInADelivery) {
    const auto held = std::make_shared<int>(0);
    AnyCancellable token;
    token = subject.sink([held, &token](int) { token.cancel(); });

    subject.send(1);

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Subject, LetsGoOfEveryReceiverWhenItGoes) {
    const auto held = std::make_shared<int>(0);
    AnyCancellable token;
    {
        PassthroughSubject<int> other;
        token = other.sink([held](int) {});
    }

    EXPECT_EQ(held.use_count(), 1);
}

// What a receiver holds may own other subscriptions to the same subject.
TEST_F(Subject, SurvivesCancellationsFromTheReceiversItLetsGo) {
    auto inner = std::make_shared<AnyCancellable>(subject.sink(noting("inner")));
    AnyCancellable outer = subject.sink([inner](int) {});
    const auto last = subject.sink(noting("last"));
    inner.reset();

    outer.cancel();
    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("last1"));
}

TEST_F(Subject, SurvivesReceiversThatOwnEachOthersTokensWhenItGoes) {
    auto doomed = std::make_unique<PassthroughSubject<int>>();
    auto first = std::make_shared<AnyCancellable>(doomed->sink(noting("first")));
    const AnyCancellable second = doomed->sink([first](int) {});
    first.reset();

    doomed.reset();

    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Subject, DeliversToAnEmptyReceiverNothing) {
    const auto empty = subject.sink(nullptr);
    const auto a = subject.sink(noting("a"));

    subject.send(1);

    EXPECT_THAT(diary, ElementsAre("a1"));
}

TEST_F(Subject, SendsWithoutAllocating) {
    std::array<AnyCancellable, 10> tokens;
    int sum = 0;
    for (auto& token : tokens) token = subject.sink([&](int value) { sum += value; });

    const std::size_t allocations = tests::allocationsDuring([&] {
        for (int i = 0; i < 100; ++i) subject.send(1);
    });

    EXPECT_EQ(allocations, 0u);
    EXPECT_EQ(sum, 1000);
}

TEST_F(Subject, HidesBehindAPublisher) {
    const combine::AnyPublisher<int> publisher = subject.eraseToAnyPublisher();
    auto token = publisher.sink(noting("a"));

    subject.send(1);
    token.cancel();
    subject.send(2);

    EXPECT_THAT(diary, ElementsAre("a1"));
}

TEST_F(Subject, IsNotKeptAliveByItsPublisher) {
    auto doomed = std::make_unique<PassthroughSubject<int>>();
    const auto publisher = doomed->eraseToAnyPublisher();
    doomed.reset();

    EXPECT_FALSE(publisher.sink(noting("a")));
}

TEST_F(Subject, GoesOnAfterAReceiverThatThrows) {
    combine::AnyCancellable first = subject.sink(noting("a"));
    const auto thrower = subject.sink([&](int value) {
        first.cancel();
        if (value == 1) throw std::runtime_error("the host's");
    });
    const auto last = subject.sink(noting("c"));

    EXPECT_THROW(subject.send(1), std::runtime_error);
    subject.send(2);

    EXPECT_THAT(diary, ElementsAre("a1", "c2"));
}

TEST_F(Subject, LetsACancelledReceiverGoAfterOneThatThrows) {
    const auto held = std::make_shared<int>();
    combine::AnyCancellable first = subject.sink([held](int) {});
    const auto thrower = subject.sink([&](int) {
        first.cancel();
        throw std::runtime_error("the host's");
    });

    EXPECT_THROW(subject.send(1), std::runtime_error);

    EXPECT_EQ(held.use_count(), 1);
}

TEST(AnyPublisher, NeverDeliversByDefault) {
    EXPECT_FALSE(combine::AnyPublisher<int>{}.sink([](int) { FAIL(); }));
}

} // namespace

// Random subscribing, cancelling and sending from inside deliveries, checked by what every receiver is promised.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "Platform/Combine/PassthroughSubject.hpp"

using namespace proupsells;

namespace {

class Chaos {
public:
    explicit Chaos(unsigned seed) : m_random(seed) {
        for (int i = 0; i < 5; ++i) subscribe();
    }

    void send() {
        const int value = ++m_lastValue;
        m_expectedReceivers[value] = m_living;
        ++m_depth;
        m_subject.send(value);
        --m_depth;
        // Whoever was there and is still there has got the value; the order was checked on the way.
        for (const int receiver : m_expectedReceivers[value])
            EXPECT_TRUE(!m_living.count(receiver) || m_received[value].count(receiver)) << "receiver " << receiver;
    }

private:
    void subscribe() {
        const int receiver = ++m_lastReceiver;
        m_living.insert(receiver);
        m_tokens[receiver] = m_subject.sink([this, receiver](int value) { receive(receiver, value); });
    }

    void cancel() {
        if (m_living.empty()) return;
        auto victim = m_living.begin();
        std::advance(victim, m_random() % m_living.size());
        const int receiver = *victim;
        m_living.erase(victim);
        m_tokens[receiver].cancel();
    }

    void receive(int receiver, int value) {
        EXPECT_EQ(m_living.count(receiver), 1u) << "delivered to a cancelled receiver";
        EXPECT_EQ(m_expectedReceivers[value].count(receiver), 1u) << "delivered a value from before the subscription";
        auto& received = m_received[value];
        EXPECT_TRUE(received.empty() || *received.rbegin() < receiver) << "delivered out of order";
        received.insert(receiver);
        switch (m_random() % 8) {
        case 0: subscribe(); break;
        case 1:
        case 2: cancel(); break;
        case 3:
            if (m_depth < 4) send();
            break;
        default: break;
        }
    }

    std::mt19937 m_random;
    combine::PassthroughSubject<int> m_subject;
    std::map<int, combine::AnyCancellable> m_tokens;
    std::set<int> m_living;                                       // receivers are numbered in the order of subscription
    std::map<int, std::set<int>> m_expectedReceivers, m_received; // by value
    int m_lastReceiver = 0, m_lastValue = 0, m_depth = 0;
};

TEST(RandomDelivery, ReachesExactlyThoseWhoAreSubscribed) {
    for (unsigned seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Chaos chaos(seed);

        for (int i = 0; i < 20; ++i) chaos.send();

        if (HasFailure()) return;
    }
}

} // namespace

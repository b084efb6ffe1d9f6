// A stream of values without memory.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "Platform/Combine/AnyCancellable.hpp"

namespace combine {

// Delivers synchronously, in the order of subscription. From inside a delivery a receiver may send, subscribe (the new
// subscriber sees only later values), cancel anyone (a cancelled one gets nothing more, this value included) and destroy the subject.
template <class Value>
class PassthroughSubject {
public:
    using Receiver = std::function<void(const Value&)>;

    PassthroughSubject() : m_list(std::make_shared<List>()) {}
    PassthroughSubject(const PassthroughSubject&) = delete;
    PassthroughSubject& operator=(const PassthroughSubject&) = delete;

    void send(const Value& value) const {
        const auto list = m_list;
        const std::size_t count = list->receivers.size();
        ++list->deliveries;
        for (std::size_t i = 0; i < count; ++i)
            if (const auto receiver = list->receivers[i]; receiver && receiver->receive) receiver->receive(value);
        if (--list->deliveries == 0) list->sweep();
    }

    [[nodiscard]] AnyCancellable sink(Receiver receiver) const {
        auto entry = std::make_shared<Entry>(Entry{std::move(receiver)});
        m_list->receivers.push_back(entry);
        return AnyCancellable{[entry = std::weak_ptr(entry), list = std::weak_ptr(m_list)] {
            const auto held = entry.lock();
            if (!held) return;
            held->isCancelled = true;
            if (const auto alive = list.lock()) alive->cancelled(held);
        }};
    }

private:
    struct Entry {
        Receiver receive;
        bool isCancelled = false;
    };
    struct List {
        std::vector<std::shared_ptr<Entry>> receivers;
        int deliveries = 0;

        void cancelled(const std::shared_ptr<Entry>&);
        void sweep();
    };
    std::shared_ptr<List> m_list;
};

} // namespace combine

// A stream of values without memory.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Platform/Combine/AnyCancellable.hpp"
#include "Platform/Combine/AnyPublisher.hpp"
#include "Platform/Commons/ScopeEnd.hpp"

namespace proupsells::combine {

// Delivers synchronously, in the order of subscription. From inside a delivery a receiver may send (delivered at once, before the
// rest of the outer value's receivers get theirs), subscribe (the new subscriber sees only later values), cancel anyone (a
// cancelled one gets nothing more, this value included) and destroy the subject (the value under way still reaches everyone else).
// What a receiver throws passes through, and the rest of the receivers do not get that value.
template <class Value>
class PassthroughSubject {
public:
    // What a value is delivered to; an empty one is told nothing.
    using Receiver = std::function<void(const Value&)>;

    PassthroughSubject() : m_list(std::make_shared<List>()) {}
    PassthroughSubject(const PassthroughSubject&) = delete;
    PassthroughSubject& operator=(const PassthroughSubject&) = delete;

    // Sending does not allocate.
    void send(const Value& value) const { List::deliver(m_list, value); }

    // The subscription lasts as long as the token or the subject, whichever ends first.
    [[nodiscard]] AnyCancellable sink(Receiver receiver) const { return List::subscribe(m_list, std::move(receiver)); }

    // Does not keep the subject alive; subscribing after the subject's end delivers nothing.
    AnyPublisher<Value> eraseToAnyPublisher() const {
        return AnyPublisher<Value>{[list = std::weak_ptr(m_list)](Receiver receiver) {
            const auto living = list.lock();
            return living ? List::subscribe(living, std::move(receiver)) : AnyCancellable{};
        }};
    }

private:
    struct Entry {
        Receiver receive;
        bool isCancelled = false;
    };
    using EntryPointer = std::shared_ptr<Entry>;

    // Shared, so that it outlives its subject while a delivery is under way.
    struct List {
        std::vector<EntryPointer> entries;
        int deliveries = 0; // nested ones included
        bool hasCancelledEntries = false;

        static AnyCancellable subscribe(const std::shared_ptr<List>& list, Receiver receiver) {
            auto entry = std::make_shared<Entry>(Entry{std::move(receiver)});
            list->entries.push_back(entry);
            return AnyCancellable{[entry = std::weak_ptr(entry), list = std::weak_ptr(list)] {
                const auto living = entry.lock();
                if (!living) return;
                living->isCancelled = true;
                if (const auto owner = list.lock()) owner->removeCancelled();
            }};
        }

        static void deliver(std::shared_ptr<List> list, const Value& value) {
            // Those who subscribe from now on stand behind this count; nobody is taken out while it is in use.
            const std::size_t count = list->entries.size();
            ++list->deliveries;
            const commons::Finally end([&] {
                --list->deliveries;
                if (list->hasCancelledEntries) list->removeCancelled();
            });
            for (std::size_t i = 0; i < count; ++i) {
                // A copy, because a new subscriber may make the list move.
                const EntryPointer entry = list->entries[i];
                if (!entry->isCancelled && entry->receive) entry->receive(value);
            }
        }

        // Receivers are let go only after the list is in order again: what they hold may cancel and subscribe when it goes.
        void removeCancelled() {
            hasCancelledEntries = deliveries > 0;
            if (deliveries > 0) return;
            std::vector<EntryPointer> cancelled;
            std::erase_if(entries, [&](const EntryPointer& entry) {
                if (entry->isCancelled) cancelled.push_back(entry);
                return entry->isCancelled;
            });
        }
    };

    std::shared_ptr<List> m_list;
};

} // namespace proupsells::combine

// A cache that holds a number of bytes and forgets what has not been asked for the longest.
#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

namespace proupsells::rasterbackend {

// Asking for what is there allocates nothing.
template <class Key, class Value, class Hash = typename Key::Hash>
class LruCache {
public:
    explicit LruCache(std::size_t byteLimit) : m_byteLimit(byteLimit) {}

    // Null where there is none. Good until the next insertion.
    Value* find(const Key& key) {
        const auto found = m_index.find(key);
        if (found == m_index.end()) return nullptr;
        m_entries.splice(m_entries.begin(), m_entries, found->second);
        return &found->second->value;
    }

    // The newest value stays even if it is larger than the whole cache. The key must not be there yet.
    Value& insert(const Key& key, Value value, std::size_t byteCount) {
        m_entries.push_front({key, std::move(value), byteCount});
        m_index.emplace(key, m_entries.begin());
        m_byteCount += byteCount;
        while (m_byteCount > m_byteLimit && m_entries.size() > 1) {
            m_byteCount -= m_entries.back().byteCount;
            m_index.erase(m_entries.back().key);
            m_entries.pop_back();
        }
        return m_entries.front().value;
    }

    std::size_t byteCount() const { return m_byteCount; }
    std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        Key key;
        Value value;
        std::size_t byteCount;
    };

    std::size_t m_byteLimit;
    std::size_t m_byteCount = 0;
    std::list<Entry> m_entries; // newest first
    std::unordered_map<Key, typename std::list<Entry>::iterator, Hash> m_index;
};

} // namespace proupsells::rasterbackend

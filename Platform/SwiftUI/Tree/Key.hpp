// The identity of a view among its siblings.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace proupsells::swiftui {

// A number or a text. The text is not copied: it must last as long as the build.
struct Key {
    std::int64_t number = 0;
    std::string_view text;
    std::uint8_t kind = 0; // 0 none, 1 number, 2 text

    constexpr Key() = default;
    constexpr Key(int value) : number(value), kind(1) {}
    constexpr Key(std::int64_t value) : number(value), kind(1) {}
    constexpr Key(std::size_t value) : number(static_cast<std::int64_t>(value)), kind(1) {}
    constexpr Key(std::string_view value) : text(value), kind(2) {}
    constexpr Key(const char* value) : text(value), kind(2) {}
    Key(const std::string& value) : text(value), kind(2) {}

    bool isNone() const { return kind == 0; }
    std::size_t hash() const { return std::hash<std::string_view>{}(text) ^ std::hash<std::int64_t>{}(number); }
    bool operator==(const Key&) const = default;
};

// A key that owns its text: what nodes remember.
class StoredKey {
public:
    StoredKey() = default;
    explicit StoredKey(const Key& key) : m_number(key.number), m_text(key.text), m_kind(key.kind) {}

    Key key() const {
        Key result;
        result.number = m_number;
        result.text = m_text;
        result.kind = m_kind;
        return result;
    }
    bool operator==(const Key& other) const { return m_kind == other.kind && m_number == other.number && m_text == other.text; }

private:
    std::int64_t m_number = 0;
    std::string m_text;
    std::uint8_t m_kind = 0;
};

} // namespace proupsells::swiftui

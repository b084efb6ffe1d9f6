// The identity of a view among its siblings.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
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

// A key that owns its text: what nodes remember. Few have one.
class StoredKey {
public:
    StoredKey() = default;
    explicit StoredKey(const Key& key) {
        if (!key.isNone()) m_content = std::make_unique<Content>(Content{key.number, std::string(key.text), key.kind});
    }

    Key key() const {
        Key result;
        if (!m_content) return result;
        result.number = m_content->number;
        result.text = m_content->text;
        result.kind = m_content->kind;
        return result;
    }
    bool operator==(const Key& other) const { return key() == other; }

private:
    struct Content {
        std::int64_t number = 0;
        std::string text;
        std::uint8_t kind = 0;
    };

    std::unique_ptr<const Content> m_content; // null for none
};

} // namespace proupsells::swiftui

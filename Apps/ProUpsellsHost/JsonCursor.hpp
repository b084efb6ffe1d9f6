// A value in a JSON file. Complaints about it name its place.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Apps/ProUpsellsHost/Json.hpp"
#include "Apps/ProUpsellsHost/Word.hpp"

namespace proupsells::hostprogram {

// Every reader throws InputError when the value is not what it asks for.
class JsonCursor {
public:
    JsonCursor(const Json& value, std::string file) : m_value(&value), m_file(std::move(file)) {}

    const std::string& file() const { return m_file; }
    bool isNull() const;
    bool isText() const;
    bool isObject() const;
    bool isArray() const;
    bool isNumber() const;

    // The object must not have other keys than these.
    void expectObject(std::span<const std::string_view> keys) const;
    void expectObject(std::initializer_list<std::string_view> keys) const { expectObject(std::span(keys.begin(), keys.size())); }
    // The object's keys in the file's order.
    std::vector<std::string> keys() const;
    bool has(std::string_view key) const;
    // A member that must be there.
    JsonCursor at(std::string_view key) const;
    // A member that may be left out or null.
    std::optional<JsonCursor> optional(std::string_view key) const;

    std::vector<JsonCursor> elements() const;
    // An array of exactly `count` numbers, each from `minimum` on.
    std::vector<double> numbers(std::size_t count, double minimum, std::string_view meaning) const;

    std::string text() const;
    bool boolean() const;
    double number(double minimum, double maximum, std::string_view meaning) const;
    std::int64_t wholeNumber() const;
    // One of the table's words; returns the value beside it.
    template <class Value, std::size_t count>
    const Value& oneOf(const Word<Value> (&table)[count]) const {
        return table[indexAmong(wordsOf(table))].value;
    }

    [[noreturn]] void fail(const std::string& complaint) const;

private:
    JsonCursor(const Json& value, std::string file, std::string pointer)
        : m_value(&value), m_file(std::move(file)), m_pointer(std::move(pointer)) {}

    // "a number" and the like, for complaints.
    std::string kind() const;
    // The object itself.
    const Json& members() const;
    const Json* find(std::string_view key) const;
    std::size_t indexAmong(std::span<const std::string_view> words) const;
    JsonCursor child(const Json& value, std::string_view token) const;

    const Json* m_value;
    std::string m_file;
    std::string m_pointer;
};

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/JsonCursor.hpp"

#include <algorithm>
#include <cmath>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/JsonPointer.hpp"

namespace proupsells::hostprogram {

namespace {

std::string quotedList(std::span<const std::string_view> words) {
    std::string result;
    for (const std::string_view word : words) {
        if (!result.empty()) result += ", ";
        result += '"' + std::string(word) + '"';
    }
    return result;
}

} // namespace

bool JsonCursor::isNull() const { return m_value->is_null(); }
bool JsonCursor::isText() const { return m_value->is_string(); }
bool JsonCursor::isObject() const { return m_value->is_object(); }
bool JsonCursor::isArray() const { return m_value->is_array(); }
bool JsonCursor::isNumber() const { return m_value->is_number(); }

void JsonCursor::fail(const std::string& complaint) const { throw InputError(m_file, m_pointer, complaint); }

std::string JsonCursor::kind() const {
    if (m_value->is_object()) return "an object";
    if (m_value->is_array()) return "an array";
    if (m_value->is_string()) return "a text";
    if (m_value->is_boolean()) return m_value->get<bool>() ? "true" : "false";
    if (m_value->is_number()) return "the number " + m_value->dump();
    return "null";
}

const Json* JsonCursor::find(std::string_view key) const {
    if (!m_value->is_object()) return nullptr;
    for (const auto& [name, value] : m_value->get_ref<const Json::object_t&>())
        if (name == key) return &value;
    return nullptr;
}

JsonCursor JsonCursor::child(const Json& value, std::string_view token) const {
    return {value, m_file, m_pointer + pointerStep(token)};
}

void JsonCursor::expectObject(std::span<const std::string_view> keys) const {
    for (const auto& [name, value] : members().items())
        if (std::find(keys.begin(), keys.end(), name) == keys.end())
            child(value, name).fail("unknown key \"" + name + "\", expected one of " + quotedList(keys));
}

const Json& JsonCursor::members() const {
    if (!m_value->is_object()) fail(kind() + " stands here, expected an object");
    return *m_value;
}

std::vector<std::string> JsonCursor::keys() const {
    std::vector<std::string> result;
    for (const auto& [name, value] : members().items()) result.push_back(name);
    return result;
}

bool JsonCursor::has(std::string_view key) const { return find(key) != nullptr; }

JsonCursor JsonCursor::at(std::string_view key) const {
    const Json* value = find(key);
    if (!value) fail("the key \"" + std::string(key) + "\" is missing, expected it here");
    return child(*value, key);
}

std::optional<JsonCursor> JsonCursor::optional(std::string_view key) const {
    const Json* value = find(key);
    if (!value || value->is_null()) return std::nullopt;
    return child(*value, key);
}

std::vector<JsonCursor> JsonCursor::elements() const {
    if (!m_value->is_array()) fail(kind() + " stands here, expected an array");
    std::vector<JsonCursor> result;
    result.reserve(m_value->size());
    for (std::size_t i = 0; i < m_value->size(); ++i) result.push_back(child((*m_value)[i], std::to_string(i)));
    return result;
}

std::vector<double> JsonCursor::numbers(std::size_t count, double minimum, std::string_view meaning) const {
    const std::string expectation = "expected " + std::string(meaning);
    if (!m_value->is_array()) fail(kind() + " stands here, " + expectation);
    if (m_value->size() != count) fail(std::to_string(m_value->size()) + " elements stand here, " + expectation);
    std::vector<double> result;
    for (const JsonCursor& element : elements()) result.push_back(element.number(minimum, 1e6, meaning));
    return result;
}

std::string JsonCursor::text() const {
    if (!m_value->is_string()) fail(kind() + " stands here, expected a text");
    return m_value->get<std::string>();
}

bool JsonCursor::boolean() const {
    if (!m_value->is_boolean()) fail(kind() + " stands here, expected true or false");
    return m_value->get<bool>();
}

double JsonCursor::number(double minimum, double maximum, std::string_view meaning) const {
    if (!m_value->is_number()) fail(kind() + " stands here, expected " + std::string(meaning));
    const double value = m_value->get<double>();
    if (!std::isfinite(value) || value < minimum || value > maximum)
        fail(kind() + " is out of range, expected " + std::string(meaning));
    return value;
}

std::int64_t JsonCursor::wholeNumber() const {
    constexpr const char* expectation = ", expected a whole number in 64 bits";
    if (!m_value->is_number()) fail(kind() + " stands here" + expectation);
    if (m_value->is_number_unsigned() && m_value->get<std::uint64_t>() > std::uint64_t(std::numeric_limits<std::int64_t>::max()))
        fail(kind() + " is out of range" + expectation);
    if (m_value->is_number_integer()) return m_value->get<std::int64_t>();
    const double value = m_value->get<double>();
    if (!(value >= -0x1p63 && value < 0x1p63)) fail(kind() + " is out of range" + expectation);
    if (value != std::floor(value)) fail(kind() + " has a fraction" + expectation);
    return static_cast<std::int64_t>(value);
}

std::size_t JsonCursor::indexAmong(std::span<const std::string_view> words) const {
    const std::string expectation = "expected one of " + quotedList(words);
    if (!m_value->is_string()) fail(kind() + " stands here, " + expectation);
    const auto found = std::find(words.begin(), words.end(), m_value->get_ref<const std::string&>());
    if (found == words.end()) fail("\"" + m_value->get<std::string>() + "\" is not known, " + expectation);
    return static_cast<std::size_t>(found - words.begin());
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/JsonFile.hpp"

#include <fstream>
#include <set>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/JsonPointer.hpp"
#include "Platform/Foundation/Utf8.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr std::size_t maximumDepth = 100;
// Takes some 200 MB. Recordings of hours have fewer.
constexpr std::size_t maximumValueCount = 2'000'000;

// Builds the value while the file is parsed. Stops at the first thing that is wrong, and knows its place.
class Builder : public nlohmann::json_sax<Json> {
public:
    explicit Builder(std::string file) : m_file(std::move(file)) {}

    Json result;

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t&) override { return add(value); }
    bool string(string_t& value) override { return add(std::move(value)); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return enter(Json::object()); }
    bool end_object() override { return leave(); }
    bool start_array(std::size_t) override { return enter(Json::array()); }
    bool end_array() override { return leave(); }

    bool key(string_t& value) override {
        Level& level = m_levels.back();
        if (!level.keys.insert(value).second) {
            level.key = value;
            fail("the key \"" + value + "\" stands here twice, expected every key once");
        }
        level.key = value;
        return true;
    }

    bool parse_error(std::size_t position, const std::string& token, const nlohmann::json::exception& error) override {
        constexpr int numberOverflow = 406; // nlohmann-json's documented number of the error
        if (error.id == numberOverflow) fail("the number " + token + " is out of range, expected a smaller one");
        m_errorOffset = position - 1; // it counts from 1
        return false;
    }

    std::size_t errorOffset() const { return m_errorOffset; }

    std::string pointer() const {
        std::string result;
        for (const Level& level : m_levels) {
            // What is entered stands in its array already; what comes next does not.
            if (level.value->is_array())
                result += pointerStep(std::to_string(level.value->size() - (&level == &m_levels.back() ? 0 : 1)));
            else if (!level.key.empty() || !level.keys.empty())
                result += pointerStep(level.key);
        }
        return result;
    }

private:
    struct Level {
        Json* value;
        std::string key;
        std::set<std::string> keys;
    };

    [[noreturn]] void fail(const std::string& complaint) const { throw InputError(m_file, pointer(), complaint); }

    Json* place(Json value) {
        if (++m_valueCount > maximumValueCount) fail("there are more than 2000000 values, expected fewer");
        if (m_levels.empty()) {
            result = std::move(value);
            return &result;
        }
        Level& level = m_levels.back();
        if (level.value->is_array()) {
            level.value->push_back(std::move(value));
            return &level.value->back();
        }
        return &level.value->get_ref<Json::object_t&>().emplace_back(level.key, std::move(value)).second;
    }

    bool add(Json value) {
        place(std::move(value));
        return true;
    }

    bool enter(Json value) {
        if (m_levels.size() == maximumDepth) fail("nested too deeply, expected at most 100 levels");
        // The container does not move: its parent only grows after the container has been left.
        Json* placed = place(std::move(value));
        m_levels.push_back({placed, {}, {}});
        return true;
    }

    bool leave() {
        m_levels.pop_back();
        return true;
    }

    std::string m_file;
    std::vector<Level> m_levels;
    std::size_t m_valueCount = 0;
    std::size_t m_errorOffset = 0;
};

std::string readBytes(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (error || !std::filesystem::exists(status))
        throw InputError(system::textOf(file), "", "there is no such file, expected a JSON file");
    if (std::filesystem::is_directory(status)) throw InputError(system::textOf(file), "", "this is a folder, expected a JSON file");
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw InputError(system::textOf(file), "", "the file cannot be read, expected a readable JSON file");

    std::string bytes;
    char chunk[65536];
    while (stream.read(chunk, sizeof chunk) || stream.gcount() > 0) {
        bytes.append(chunk, static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > maximumFileSize)
            throw InputError(system::textOf(file), "", "the file is larger than 64 MB, expected a smaller one");
    }
    if (stream.bad()) throw InputError(system::textOf(file), "", "the file cannot be read, expected a readable JSON file");
    if (bytes.empty()) throw InputError(system::textOf(file), "", "the file is empty, expected a JSON object");
    return bytes;
}

std::string lineAndColumn(std::string_view text, std::size_t offset) {
    std::size_t line = 1, column = 1;
    for (const char c : text.substr(0, offset)) {
        ++column;
        if (c == '\n') {
            ++line;
            column = 1;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

} // namespace

Json readJsonFile(const std::filesystem::path& file) {
    const std::string bytes = readBytes(file);
    if (const auto offset = foundation::firstInvalidUtf8(bytes))
        throw InputError(system::textOf(file), "", "invalid UTF-8 at " + lineAndColumn(bytes, *offset) + ", expected UTF-8");

    Builder builder(system::textOf(file));
    if (!Json::sax_parse(bytes, &builder)) {
        throw InputError(system::textOf(file), builder.pointer(),
                         "malformed JSON at " + lineAndColumn(bytes, builder.errorOffset()) + ", expected well-formed JSON");
    }
    return std::move(builder.result);
}

} // namespace proupsells::hostprogram

// How values are spelt in files, on the command line and in event lines.
#pragma once

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::hostprogram {

// A table of these is read and written by: JsonCursor::oneOf() finds the value for a word, wordFor() the word for a value.
template <class Value>
struct Word {
    std::string_view word;
    Value value;
};

template <class Value, std::size_t count>
constexpr std::array<std::string_view, count> wordsOf(const Word<Value> (&table)[count]) {
    std::array<std::string_view, count> words;
    std::transform(std::begin(table), std::end(table), words.begin(), [](const Word<Value>& entry) { return entry.word; });
    return words;
}

// The end of the table where it has no such word.
template <class Value, std::size_t count>
const Word<Value>* entryFor(std::string_view word, const Word<Value> (&table)[count]) {
    return std::find_if(std::begin(table), std::end(table), [&](const Word<Value>& entry) { return entry.word == word; });
}

// A value that the table does not have stops the program.
template <class Value, std::size_t count>
std::string_view wordFor(const Value& value, const Word<Value> (&table)[count]) {
    for (const Word<Value>& entry : table)
        if (entry.value == value) return entry.word;
    commons::fatalError("A value has no word in its table");
}

} // namespace proupsells::hostprogram

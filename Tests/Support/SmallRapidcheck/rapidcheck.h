// What the property tests use of rapidcheck, for compilers and systems that no built library of that name is for. Tries as many cases,
// the same ones each time, and does not look for a smaller one when a case fails.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <random>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace rc {

struct Run {
    std::mt19937_64 randomness{20261121};
    std::size_t size = 0; // what a container holds at most
    bool isDiscarded = false;
};

inline Run& currentRun() {
    static Run run;
    return run;
}

template <class Value>
class Gen {
public:
    explicit Gen(std::function<Value()> make) : m_make(std::move(make)) {}
    Value operator*() const { return m_make(); }

private:
    std::function<Value()> m_make;
};

namespace gen {

inline std::uint64_t below(std::uint64_t end) { return currentRun().randomness() % end; }

template <class Value>
Gen<Value> inRange(Value first, Value end) {
    return Gen<Value>([=] { return static_cast<Value>(first + static_cast<Value>(below(std::uint64_t(end - first)))); });
}

// Small numbers as often as large ones.
template <class Value>
Gen<Value> arbitrary() {
    static_assert(std::is_arithmetic_v<Value>);
    if constexpr (std::is_integral_v<Value>)
        return Gen<Value>([] { return static_cast<Value>(currentRun().randomness() >> below(64)); });
    else
        return Gen<Value>([] {
            const double magnitude = std::ldexp(double(currentRun().randomness()), int(below(2000)) - 1063);
            return static_cast<Value>(below(2) == 0 ? magnitude : -magnitude);
        });
}

template <class Container>
auto elementOf(Container elements) {
    return Gen<typename Container::value_type>([elements = std::move(elements)] { return elements[below(elements.size())]; });
}

template <class First, class... Others>
auto element(First&& first, Others&&... others) {
    using Value = std::decay_t<First>;
    return elementOf(std::vector<Value>{std::forward<First>(first), static_cast<Value>(std::forward<Others>(others))...});
}

template <class Value, class Function>
auto map(Gen<Value> gen, Function function) {
    using Result = std::invoke_result_t<Function, Value>;
    return Gen<Result>([gen = std::move(gen), function = std::move(function)] { return function(*gen); });
}

template <class First, class Second>
Gen<std::pair<First, Second>> pair(Gen<First> first, Gen<Second> second) {
    return Gen<std::pair<First, Second>>([first = std::move(first), second = std::move(second)] {
        auto value = *first;
        return std::pair(std::move(value), *second);
    });
}

template <class Container, class Value>
Gen<Container> container(std::size_t count, Gen<Value> gen) {
    return Gen<Container>([count, gen = std::move(gen)] {
        Container all;
        for (std::size_t index = 0; index < count; ++index) all.insert(all.end(), *gen);
        return all;
    });
}

template <class Container, class Value>
Gen<Container> container(Gen<Value> gen) {
    return Gen<Container>([gen = std::move(gen)] { return *container<Container>(below(currentRun().size + 1), gen); });
}

template <class Container, class Key, class Value>
Gen<Container> container(Gen<Key> key, Gen<Value> value) {
    return container<Container>(pair(std::move(key), std::move(value)));
}

template <class Value>
Gen<Value> resize(std::size_t size, Gen<Value> gen) {
    return Gen<Value>([size, gen = std::move(gen)] {
        const std::size_t outer = std::exchange(currentRun().size, size);
        Value value = *gen;
        currentRun().size = outer;
        return value;
    });
}

template <class Value>
Gen<Value> weightedOneOf(std::initializer_list<std::pair<std::size_t, Gen<Value>>> choices) {
    std::vector<Gen<Value>> gens;
    for (const auto& [weight, gen] : choices) gens.insert(gens.end(), weight, gen);
    return Gen<Value>([gens = std::move(gens)] { return *gens[below(gens.size())]; });
}

template <class Value, class... Others>
Gen<Value> oneOf(Gen<Value> first, Others... others) {
    return weightedOneOf<Value>({{1, std::move(first)}, {1, std::move(others)}...});
}

} // namespace gen

// Calls the property with 100 cases, fewer where nearly all are discarded. Whether none has failed.
template <class... Arguments>
bool checkFunction(const std::string& name, const std::function<void(Arguments...)>& property) {
    currentRun() = {};
    for (int kept = 0, tried = 0; kept < 100 && tried < 1000; ++tried) {
        currentRun().size = std::size_t(kept);
        currentRun().isDiscarded = false;
        property(*gen::arbitrary<Arguments>()...);
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << name << ": case " << tried << " fails";
            return false;
        }
        if (!currentRun().isDiscarded) ++kept;
    }
    return true;
}

template <class Property>
bool check(const std::string& name, Property property) {
    return checkFunction(name, std::function(std::move(property)));
}

} // namespace rc

#define RC_ASSERT(...)                                                                                                             \
    GTEST_AMBIGUOUS_ELSE_BLOCKER_                                                                                                  \
    if (__VA_ARGS__) {                                                                                                             \
    } else                                                                                                                         \
        FAIL() << #__VA_ARGS__
#define RC_PRE(...)                                                                                                                \
    GTEST_AMBIGUOUS_ELSE_BLOCKER_                                                                                                  \
    if (__VA_ARGS__) {                                                                                                             \
    } else                                                                                                                         \
        return void(rc::currentRun().isDiscarded = true)

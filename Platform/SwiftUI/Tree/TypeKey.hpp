// What tells two C++ types apart at run time, and what a type is called on screen dumps.
#pragma once

#include <string_view>

namespace proupsells::swiftui {

// Equal for the same type only.
using TypeKey = const void*;

namespace detail {
template <class T>
struct TypeKeyOf {
    static inline char storage = 0;
};

template <class T>
constexpr std::string_view prettyFunction() {
    return __PRETTY_FUNCTION__;
}

// The last part of the name between "T = " and the end, template arguments cut off.
constexpr std::string_view bareTypeName(std::string_view pretty) {
    const std::size_t start = pretty.find("T = ") + 4;
    std::string_view name = pretty.substr(start, pretty.find_first_of(";]", start) - start);
    if (const std::size_t arguments = name.find('<'); arguments != name.npos) name = name.substr(0, arguments);
    if (const std::size_t scope = name.rfind("::"); scope != name.npos) name = name.substr(scope + 2);
    return name;
}

template <class T>
concept NamesItself = requires {
    std::string_view{T::typeName};
};
} // namespace detail

template <class T>
TypeKey typeKey() {
    return &detail::TypeKeyOf<T>::storage;
}

// The type's name without namespaces; `T::typeName` where a type has one.
template <class T>
constexpr std::string_view typeNameOf() {
    if constexpr (detail::NamesItself<T>)
        return T::typeName;
    else
        return detail::bareTypeName(detail::prettyFunction<T>());
}

} // namespace proupsells::swiftui

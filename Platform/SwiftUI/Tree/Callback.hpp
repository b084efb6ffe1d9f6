// What a view does when something happens.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace proupsells::swiftui {

template <class Signature>
class Callback;

// A function value that is part of a view. Two callbacks always compare equal, since what a control does changes neither its
// place nor its picture; the node adopts the newest. Captures of up to six pointers' size need no memory of their own.
template <class Result, class... Arguments>
class Callback<Result(Arguments...)> {
public:
    Callback() = default;
    Callback(std::nullptr_t) {}

    template <class Function>
    requires(!std::is_same_v<std::remove_cvref_t<Function>, Callback> && std::is_invocable_r_v<Result, Function&, Arguments...>)
        Callback(Function&& function) {
        using Held = std::remove_cvref_t<Function>;
        if constexpr (fits<Held>) {
            ::new (m_storage) Held(std::forward<Function>(function));
            m_operations = &InPlace<Held>::operations;
        } else {
            ::new (m_storage) std::shared_ptr<Held>(std::make_shared<Held>(std::forward<Function>(function)));
            m_operations = &Shared<Held>::operations;
        }
    }
    Callback(const Callback& other) : m_operations(other.m_operations) {
        if (m_operations) m_operations->copy(other.m_storage, m_storage);
    }
    Callback(Callback&& other) noexcept : m_operations(other.m_operations) {
        if (m_operations) m_operations->move(other.m_storage, m_storage);
    }
    Callback& operator=(const Callback& other) {
        if (this != &other) *this = Callback(other);
        return *this;
    }
    Callback& operator=(Callback&& other) noexcept {
        if (this == &other) return *this;
        if (m_operations) m_operations->destroy(m_storage);
        m_operations = other.m_operations;
        if (m_operations) m_operations->move(other.m_storage, m_storage);
        return *this;
    }
    ~Callback() {
        if (m_operations) m_operations->destroy(m_storage);
    }

    explicit operator bool() const { return m_operations != nullptr; }
    // An empty callback must not be called.
    Result operator()(Arguments... arguments) const {
        return m_operations->invoke(m_storage, std::forward<Arguments>(arguments)...);
    }
    bool operator==(const Callback&) const { return true; }

private:
    static constexpr std::size_t capacity = 6 * sizeof(void*);

    struct Operations {
        Result (*invoke)(void*, Arguments...);
        void (*copy)(const void*, void*);
        void (*move)(void*, void*);
        void (*destroy)(void*);
    };
    template <class Held>
    static constexpr bool fits = sizeof(Held) <= capacity && alignof(Held) <= alignof(std::max_align_t) &&
                                 std::is_nothrow_move_constructible_v<Held>&& std::is_copy_constructible_v<Held>;

    template <class Held>
    struct InPlace {
        static Result invoke(void* held, Arguments... arguments) {
            return std::invoke(*static_cast<Held*>(held), std::forward<Arguments>(arguments)...);
        }
        static void copy(const void* from, void* to) { ::new (to) Held(*static_cast<const Held*>(from)); }
        static void move(void* from, void* to) { ::new (to) Held(std::move(*static_cast<Held*>(from))); }
        static void destroy(void* held) { static_cast<Held*>(held)->~Held(); }
        static constexpr Operations operations{invoke, copy, move, destroy};
    };
    template <class Held>
    struct Shared {
        using Pointer = std::shared_ptr<Held>;
        static Result invoke(void* held, Arguments... arguments) {
            return std::invoke(**static_cast<Pointer*>(held), std::forward<Arguments>(arguments)...);
        }
        static void copy(const void* from, void* to) { ::new (to) Pointer(*static_cast<const Pointer*>(from)); }
        static void move(void* from, void* to) { ::new (to) Pointer(std::move(*static_cast<Pointer*>(from))); }
        static void destroy(void* held) { static_cast<Pointer*>(held)->~Pointer(); }
        static constexpr Operations operations{invoke, copy, move, destroy};
    };

    alignas(std::max_align_t) mutable std::byte m_storage[capacity];
    const Operations* m_operations = nullptr;
};

using Action = Callback<void()>;

} // namespace proupsells::swiftui

// What a view does when something happens.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/SwiftUI/Tree/Connection.hpp"

namespace proupsells::swiftui {

template <class Signature>
class Callback;

// A function value that is part of a view; see Connection for what its copies do. The function stays alive while it runs,
// whatever it does to the view.
template <class Result, class... Arguments>
class Callback<Result(Arguments...)> : public Connection {
public:
    Callback() = default;
    Callback(std::nullptr_t) {}

    template <class Called>
    requires(!std::is_same_v<std::remove_cvref_t<Called>, Callback> && std::is_invocable_r_v<Result, Called&, Arguments...>)
        Callback(Called&& called)
        : Connection(std::make_shared<FunctionOf<std::remove_cvref_t<Called>>>(std::forward<Called>(called))) {}

    explicit operator bool() const { return target() != nullptr; }
    // An empty callback does nothing. Where a result is expected of it, it stops the program.
    Result operator()(Arguments... arguments) const {
        const std::shared_ptr<Target> function = target();
        if (function) return static_cast<Function&>(*function).call(std::forward<Arguments>(arguments)...);
        if constexpr (!std::is_void_v<Result>) commons::fatalError("An empty callback was asked for a result");
    }

    // Always equal, since what a control does changes neither its place nor its picture. A callback that gives something back
    // may well change it, and cannot be compared.
    bool operator==(const Callback& newer) const requires std::is_void_v<Result> {
        meet(newer);
        return true;
    }

private:
    struct Function : Target {
        virtual Result call(Arguments... arguments) = 0;
    };
    template <class Held>
    struct FunctionOf final : Function {
        template <class Called>
        explicit FunctionOf(Called&& called) : held(std::forward<Called>(called)) {}
        Result call(Arguments... arguments) override {
            if constexpr (std::is_void_v<Result>)
                std::invoke(held, std::forward<Arguments>(arguments)...);
            else
                return std::invoke(held, std::forward<Arguments>(arguments)...);
        }
        Held held;
    };
};

using Action = Callback<void()>;

} // namespace proupsells::swiftui

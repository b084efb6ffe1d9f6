// What a view may use while its body is evaluated.
#pragma once

#include <memory>
#include <string>

#include "Platform/Combine/ObservableObject.hpp"
#include "Platform/SwiftUI/Tree/Composite.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/SwiftUI/Tree/State.hpp"

namespace proupsells::swiftui {

class CompositeNode;

// Good during the call of body() only.
class BuildContext {
public:
    BuildContext(CompositeNode& node, const EnvironmentValues& environment) : m_node(node), m_environment(environment) {}
    BuildContext(const BuildContext&) = delete;

    // The view is built again whenever it changes.
    const EnvironmentValues& environment() const { return m_environment; }

    // A value that the view owns from its first build until it leaves the tree. `initial` is used in the first build only. A body
    // must ask for its states in the same order every time; otherwise the program is stopped.
    template <class Value>
    Binding<Value> state(Value initial) {
        if (auto* existing = nextSlot()) {
            if ((*existing)->type() != typeKey<Value>())
                commons::fatalError("A view's body asks for its states in another order than before");
            return Binding<Value>(std::static_pointer_cast<StateSlot<Value>>(*existing));
        }
        const auto slot = std::make_shared<StateSlot<Value>>(std::move(initial));
        addSlot(slot);
        return Binding<Value>(slot);
    }

    // The view is built again after each change that the object announces.
    void observe(combine::ObservableObject& object);
    template <class Object>
    const std::shared_ptr<Object>& observe(const std::shared_ptr<Object>& object) {
        observe(static_cast<combine::ObservableObject&>(*object));
        return object;
    }

    // The object of the type that the nearest view around has put into the environment. It is observed. Stops the program when
    // there is none.
    template <class Object>
    std::shared_ptr<Object> environmentObject() {
        const auto* object = m_environment.objects ? m_environment.objects->find(typeKey<Object>()) : nullptr;
        if (!object) missingObject(typeNameOf<Object>());
        observe(**object);
        return std::static_pointer_cast<Object>(*object);
    }

private:
    // Null when the body asks for more states than before.
    std::shared_ptr<StateSlotBase>* nextSlot();
    void addSlot(std::shared_ptr<StateSlotBase> slot);
    [[noreturn]] static void missingObject(std::string_view type);

    CompositeNode& m_node;
    const EnvironmentValues& m_environment;
    std::size_t m_nextSlot = 0;
};

} // namespace proupsells::swiftui

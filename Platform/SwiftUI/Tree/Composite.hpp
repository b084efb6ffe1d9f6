// Turns view values with a body into views. Included by BuildContext.hpp.
#pragma once

#include <concepts>
#include <utility>

#include "Platform/SwiftUI/Tree/CompositeNode.hpp"

namespace proupsells::swiftui {

// Owns the newest value of the view. Closures that a body makes may use `this` for as long as the view is on screen.
template <class Value>
class TypedCompositeNode final : public CompositeNode {
public:
    explicit TypedCompositeNode(Value&& value) : m_value(std::move(value)) {}

    void adopt(Value&& value, UpdatePass& pass) {
        const bool isSame = Connection::takeOver(m_value, std::move(value));
        buildUnless(isSame, pass);
    }

protected:
    View evaluate(BuildContext& context) override { return m_value.body(context); }
    std::string_view semanticType() const override { return typeNameOf<Value>(); }

private:
    Value m_value;
};

template <class Value>
class CompositeElement final : public Element {
public:
    template <class Source>
    explicit CompositeElement(Source&& value) : Element(typeKey<Value>()), m_value(std::forward<Source>(value)) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<TypedCompositeNode<Value>>(std::move(m_value)); }
    void update(Node& node, UpdatePass& pass) override {
        auto& composite = static_cast<TypedCompositeNode<Value>&>(node);
        if (composite.isNew())
            composite.build(pass);
        else
            composite.adopt(std::move(m_value), pass);
    }

private:
    Value m_value;
};

// A value that never changes while its node lives. It is copied once and never compared.
template <class Value>
class LastingCompositeElement final : public Element {
public:
    explicit LastingCompositeElement(const Value& value) : Element(typeKey<Value>()), m_value(value) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<TypedCompositeNode<Value>>(Value(m_value)); }
    void update(Node& node, UpdatePass& pass) override {
        auto& composite = static_cast<TypedCompositeNode<Value>&>(node);
        if (composite.isNew())
            composite.build(pass);
        else
            composite.buildUnless(true, pass);
    }

private:
    const Value& m_value;
};

template <class Value>
requires(!std::same_as<std::remove_cvref_t<Value>, View> && !PrimitiveView<std::remove_cvref_t<Value>> &&
         CompositeView<std::remove_cvref_t<Value>>) View::View(Value&& value)
    : View(static_cast<Element*>(
          ElementArena::current().make<CompositeElement<std::remove_cvref_t<Value>>>(std::forward<Value>(value)))) {}

} // namespace proupsells::swiftui

// What constraints know a view by.
#pragma once

#include <cstdint>
#include <memory>

#include "Platform/System/Compiler.hpp"

namespace proupsells::uikit {

class UIView;

// Outlives the view, so that a constraint can tell that the view has gone.
struct PROUPSELLS_EXPORT LayoutItem {
    // Made by the view's LayoutItemOwner.
    explicit LayoutItem(UIView& view);

    UIView* view;               // null once it has gone
    const std::uint64_t number; // never used twice
};

// A view's own end of its item, which is made when it is first asked for.
class LayoutItemOwner {
public:
    LayoutItemOwner() = default;
    LayoutItemOwner(const LayoutItemOwner&) = delete;
    LayoutItemOwner& operator=(const LayoutItemOwner&) = delete;
    ~LayoutItemOwner() {
        if (m_item) m_item->view = nullptr;
    }

    // Never null. `view` is the one that this belongs to, the same at every call.
    const std::shared_ptr<LayoutItem>& itemOf(UIView& view) {
        if (!m_item) m_item = std::make_shared<LayoutItem>(view);
        return m_item;
    }
    // Whether itemOf() was ever called.
    bool exists() const { return m_item != nullptr; }

private:
    std::shared_ptr<LayoutItem> m_item;
};

} // namespace proupsells::uikit

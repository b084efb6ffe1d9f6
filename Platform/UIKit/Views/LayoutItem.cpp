#include "Platform/UIKit/Views/LayoutItem.hpp"

namespace proupsells::uikit {

namespace {

std::uint64_t nextNumber() {
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

LayoutItem::LayoutItem(UIView& view) : view(&view), number(nextNumber()) {}

} // namespace proupsells::uikit

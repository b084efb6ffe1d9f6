// Views that have left a collection and wait to be shown again.
#pragma once

#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

#include "Platform/UIKit/Collection/UICollectionViewCell.hpp"

namespace proupsells::uikit {

// Sorted by class; a class needs no registration.
class UICollectionViewReusePool {
public:
    template <class View>
    std::shared_ptr<View> dequeue() {
        auto& waiting = m_waiting[typeid(View)];
        if (waiting.empty()) return std::make_shared<View>();
        const auto view = std::static_pointer_cast<View>(std::move(waiting.back()));
        waiting.pop_back();
        view->prepareForReuse();
        return view;
    }
    void enqueue(std::shared_ptr<UICollectionReusableView> view) {
        const UICollectionReusableView& known = *view;
        m_waiting[typeid(known)].push_back(std::move(view));
    }

private:
    std::unordered_map<std::type_index, std::vector<std::shared_ptr<UICollectionReusableView>>> m_waiting;
};

} // namespace proupsells::uikit

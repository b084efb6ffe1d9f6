// What the shelves have in common that need nothing but themselves.
#pragma once

#include <utility>

#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells {

// Builds its controller when it is first asked for, and keeps it.
class LazyStorePageShelf : public VelaProStorePageShelf {
public:
    std::shared_ptr<uikit::UIViewController> viewController() override {
        if (!m_viewController) m_viewController = makeViewController();
        return m_viewController;
    }
    void setViewController(std::shared_ptr<uikit::UIViewController> controller) { m_viewController = std::move(controller); }

protected:
    virtual std::shared_ptr<uikit::UIViewController> makeViewController() const = 0;

private:
    std::shared_ptr<uikit::UIViewController> m_viewController;
};

} // namespace proupsells

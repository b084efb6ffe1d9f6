// The header carousel on a screen of its own.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ProUpsells/HeaderCarousel.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {

// A carousel with pages "page 0", "page 1", … on a screen 375 wide.
class Carousel : public Screen {
public:
    explicit Carousel(int count, ScreenOptions options = {}) : Screen(root(count), geometry::Size{375, 254}, options) {}

    // The page whose title stands or comes; one that goes does not count.
    std::string shownTitle() const {
        const auto titles = allWhere(tree(), [](const auto& node) { return node.text && node.text->font == "headline"; });
        return titles.empty() ? "" : titles.back().text->text;
    }
    double titleOpacity(std::string_view title) const {
        const auto found = allWhere(tree(), [&](const auto& node) { return node.text && node.text->text == title; });
        return found.empty() ? 0 : found.front().opacity;
    }
    // Where the strip of pages stands, in pages.
    double position() const { return -allOfType(tree(), "Color").front().frame.minX() / 375; }
    int indicatorPage() {
        const auto value = find("carousel.pageControl").value;
        return value.empty() ? -1 : std::stoi(value.substr(value.find_first_of("0123456789"))) - 1;
    }

private:
    static std::function<swiftui::View()> root(int count) {
        auto view = std::make_shared<std::optional<HeaderCarousel>>();
        return [view, count]() -> swiftui::View {
            if (!*view) view->emplace(HeaderCarousel{pages(count)});
            return HeaderCarousel(**view);
        };
    }
    static std::shared_ptr<const std::vector<Page>> pages(int count) {
        std::vector<Page> result;
        for (int index = 0; index < count; ++index)
            result.push_back({.image = image(ImageResource::paywallHeaderA()), .title = "page " + std::to_string(index)});
        return std::make_shared<const std::vector<Page>>(std::move(result));
    }
};

inline void swipe(Carousel& carousel, double fromX, double toX, double y = 100) {
    const double start_s = carousel.bed().now_s();
    carousel.touch(host::TouchPhase::began, {fromX, y});
    for (int step = 1; step <= 10; ++step) {
        carousel.runUntil(start_s + 0.02 * step);
        carousel.touch(host::TouchPhase::moved, {fromX + (toX - fromX) * step / 10, y});
    }
    carousel.touch(host::TouchPhase::ended, {toX, y});
    carousel.settle();
}

} // namespace proupsells::tests

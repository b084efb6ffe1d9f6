// The paywall in an SDL window: its pixels are painted into the window's own memory.

#include <SDL.h>

#include <ProUpsells/Raster.hpp>
#include <ProUpsells/Standard.hpp>
#include <cmath>

#include "Shop/Shop.hpp"

using namespace proupsells;

namespace {

void handOn(const SDL_Event& event, rasterbackend::PixelView& view) {
    const auto touch = [&](host::TouchPhase phase) { view.touch(phase, {double(event.button.x), double(event.button.y)}); };
    switch (event.type) {
    case SDL_MOUSEBUTTONDOWN: return touch(host::TouchPhase::began);
    case SDL_MOUSEBUTTONUP: return touch(host::TouchPhase::ended);
    case SDL_MOUSEMOTION:
        if (event.motion.state != 0) view.touch(host::TouchPhase::moved, {double(event.motion.x), double(event.motion.y)});
        return;
    case SDL_MOUSEWHEEL: return view.scroll({double(event.wheel.mouseX), double(event.wheel.mouseY)}, {0, -60.0 * event.wheel.y});
    case SDL_KEYDOWN:
        if (event.key.keysym.sym == SDLK_ESCAPE) view.key(host::Key::escape);
        if (event.key.keysym.sym == SDLK_TAB) view.key(host::Key::tab);
        if (event.key.keysym.sym == SDLK_RETURN) view.key(host::Key::activate);
        return;
    case SDL_WINDOWEVENT: return view.forgetShown();
    default: return;
    }
}

} // namespace

int main(int, char**) {
    SDL_Init(SDL_INIT_VIDEO);
    constexpr int width = 375, height = 800;
    SDL_Window* const shown = SDL_CreateWindow("Shop", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, width, height, 0);
    standard::install();

    bool isRunning = true;
    const auto purchases = std::make_shared<shop::Purchases>();
    const auto window = uikit::UIWindow::create();
    window->setRootViewController(shop::newPaywall(purchases));
    window->setRootDismissalHandler([&] { isRunning = false; });
    rasterbackend::PixelView view(window);
    view.setSize({width, height});

    while (isRunning) {
        SDL_Event event;
        constexpr double longest_s = 60;
        const double wait_s = std::min(view.nextDueDelay_s().value_or(longest_s), longest_s);
        if (SDL_WaitEventTimeout(&event, int(std::ceil(wait_s * 1000)))) {
            if (event.type == SDL_QUIT) isRunning = false;
            handOn(event, view);
        }
        SDL_Surface* const surface = SDL_GetWindowSurface(shown);
        const rasterbackend::PixelBuffer buffer{surface->pixels, surface->w, surface->h, surface->pitch,
                                                rasterbackend::PixelFormat::rgb32};
        if (view.paint(buffer, double(surface->w) / width)) SDL_UpdateWindowSurface(shown);
    }
    window->setRootViewController(nullptr);
    SDL_Quit();
}

// The paywall in an SDL window: its pixels are painted into the window's own memory.

#include <SDL.h>

#include <ProUpsells/Standard.hpp>

#include "Shop/Shop.hpp"

using namespace proupsells;

namespace {

void handOn(const SDL_Event& event, SDL_Window* shown, standard::PixelScreen& screen) {
    if (event.type == SDL_MOUSEMOTION)
        screen.pointer({double(event.motion.x), double(event.motion.y)}, event.motion.state & SDL_BUTTON_LMASK);
    if ((event.type == SDL_MOUSEBUTTONDOWN || event.type == SDL_MOUSEBUTTONUP) && event.button.button == SDL_BUTTON_LEFT)
        screen.pointer({double(event.button.x), double(event.button.y)}, event.type == SDL_MOUSEBUTTONDOWN);
    if (event.type == SDL_MOUSEWHEEL)
        screen.scroll({double(event.wheel.mouseX), double(event.wheel.mouseY)}, {0, -60.0 * double(event.wheel.preciseY)});
    if (event.type == SDL_KEYDOWN)
        screen.key(SDL_GetKeyName(event.key.keysym.sym), event.key.keysym.mod & KMOD_SHIFT, event.key.repeat);
    if (event.type != SDL_WINDOWEVENT) return;
    screen.setSeen(!(SDL_GetWindowFlags(shown) & (SDL_WINDOW_MINIMIZED | SDL_WINDOW_HIDDEN)));
    screen.forgetShown();
}

// The window's points are SDL's coordinates; on some systems it has more pixels than those.
void show(SDL_Window* shown, standard::PixelScreen& screen) {
    int width = 0, height = 0;
    SDL_GetWindowSize(shown, &width, &height);
    screen.setSize({double(width), double(height)});
    const SDL_Surface& surface = *SDL_GetWindowSurface(shown);
    const rasterbackend::PixelBuffer buffer{surface.pixels, surface.w, surface.h, surface.pitch};
    if (screen.paint(buffer, double(surface.w) / width)) SDL_UpdateWindowSurface(shown);
}

} // namespace

int main(int, char**) {
    SDL_Init(SDL_INIT_VIDEO);
    SDL_Window* const shown = SDL_CreateWindow("Shop", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 375, 800,
                                               SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
    const auto purchases = std::make_shared<shop::Purchases>();

    standard::PixelScreen screen(shop::newPaywall(purchases));
    for (bool isRunning = true; isRunning && screen.controller();) {
        SDL_Event event;
        if (SDL_WaitEventTimeout(&event, screen.nextDueDelay_ms())) {
            if (event.type == SDL_QUIT) isRunning = false;
            handOn(event, shown, screen);
        }
        show(shown, screen);
    }
    SDL_Quit();
}

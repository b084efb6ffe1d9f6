// What a desktop decides about the window where the arguments say nothing.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

class QScreen;

namespace proupsells::qtbackend {
class DesktopSettings;
}

namespace proupsells::hostprogram {

// The device of the arguments; where they give no appearance, text size, reduced motion, theme, size or scale, it is the system's.
// The window is never larger than what the screen has free, unless both its size and its scale are given.
Device desktopDevice(const ShowArguments& arguments, const qtbackend::DesktopSettings& desktop, const QScreen& screen);

// The same after `scale`, or the system, may have changed. The size stays.
Device followingDevice(const ShowArguments& arguments, const qtbackend::DesktopSettings& desktop, Device device, double scale);

} // namespace proupsells::hostprogram

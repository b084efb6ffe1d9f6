// A run loop on a virtual clock, so that this thread is the main one.
#pragma once

#include <gtest/gtest.h>

#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::tests {

struct MainThread {
    std::shared_ptr<runloop::VirtualClock> clock = std::make_shared<runloop::VirtualClock>();
    runloop::MainRunLoop loop{clock};
};

} // namespace proupsells::tests

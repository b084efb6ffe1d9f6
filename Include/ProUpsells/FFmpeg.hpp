// Clips by FFmpeg.
#pragma once

#include "Backends/FFmpeg/LazyClipDecoder.hpp"

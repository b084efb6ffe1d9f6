// Text, pictures and pixels in memory, without any toolkit.
#pragma once

#include "Backends/Raster/PixelView.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"

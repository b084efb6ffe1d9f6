// Locale data from ICU.
#pragma once

#include "Backends/Icu/IcuLocaleServices.hpp"

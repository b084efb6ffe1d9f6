// What is told of a screen, and what is wrong with one, with offers, or with a translation.
#pragma once

#include "Tooling/OffersLint.hpp"
#include "Tooling/PaintedAudit.hpp"
#include "Tooling/ScreenAudit.hpp"
#include "Tooling/ScreenDifference.hpp"
#include "Tooling/SpokenScreen.hpp"
#include "Tooling/SteeringAudit.hpp"
#include "Tooling/TranslationFiles.hpp"
#include "Tooling/TranslationsLint.hpp"

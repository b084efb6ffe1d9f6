// Everything that a host needs of the module and of the toolkit under it. A backend has a header of its own beside this one.
#pragma once

// The screens, what they sell, and who is told.
#include "ProUpsells/CallToActionButtonProvider.hpp"
#include "ProUpsells/ContrastTheme.hpp"
#include "ProUpsells/SubscriptionOption.hpp"
#include "ProUpsells/Theme.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "ProUpsells/Version.hpp"

// Showing them.
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

// What they need around them.
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/ResourcePlace.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/Clock.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/EmbeddedFiles.hpp"

// Writing down what a person does, and doing it again.
#include "Platform/Host/InputPlayer.hpp"
#include "Platform/Host/RecordedContent.hpp"
#include "Platform/Host/RecordedInputText.hpp"
#include "Platform/RunLoop/SteppedClock.hpp"

// Reading the screen back, as a test does.
#include "Platform/Accessibility/Search.hpp"

// As pkg-config names the package's place. CMake's files bring a source that does the same.
#ifdef PROUPSELLS_RESOURCES
namespace proupsells::foundation {
inline const ResourcePlace packagePlace(PROUPSELLS_RESOURCES);
} // namespace proupsells::foundation
#endif

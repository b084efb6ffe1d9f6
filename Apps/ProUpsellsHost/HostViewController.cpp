#include "Apps/ProUpsellsHost/HostViewController.hpp"

#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells::hostprogram {

void HostViewController::viewDidLoad() { view()->setBackgroundColor(velauikit::velaSecondaryAppBackground); }

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/HostViewController.hpp"

#include "Platform/VelaUIKit/Colors.hpp"

namespace proupsellshost {

void HostViewController::viewDidLoad() { view()->setBackgroundColor(velauikit::velaSecondaryAppBackground); }

} // namespace proupsellshost

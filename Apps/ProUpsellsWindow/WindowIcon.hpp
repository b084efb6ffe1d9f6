// The program's mark, for title bars and task switchers.
#pragma once

#include <QIcon>

namespace proupsells::hostprogram {

// Drawn anew at each usual size. Needs an application object.
QIcon windowIcon();

} // namespace proupsells::hostprogram

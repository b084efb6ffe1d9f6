// What Qt's bridge to AT-SPI leaves out or spoils, sent in its stead.
#pragma once

class QAccessibleEvent;

namespace proupsells::qtbackend {

// Qt leaves out that something was expanded, collapsed, scrolled into sight or out of it, or has come to stand. It names no
// children that have come by their places, and hands on an object where a changed name, description or value should be: who keeps
// what it has read, as the library of AT-SPI does, would go on telling the former one.
//
// Sends it on Qt's own connection. False where there is none or where Qt's bridge does well: Qt is to be told.
bool tellOverAtspi(QAccessibleEvent& event);

} // namespace proupsells::qtbackend

// A scroll view of rows on a screen that can be touched.
#pragma once

#include <string>

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::tests {

using swiftui::ForEach;
using swiftui::ScrollView;
using swiftui::View;
using swiftui::VStack;

// Ten rows of 100 in a window of 400.
inline View rows(int count = 10) {
    return ScrollView{.content = {VStack{.spacing = 0, .content = {ForEach(count, [](int row) {
                                                           return box(300, 100, "row" + std::to_string(row));
                                                       })}}}};
}

struct Rows {
    TouchScreen screen{[] { return rows(); }};
    double offset() { return screen.offset().y; }
};

} // namespace proupsells::tests

// A widget with a screen of two buttons.
#pragma once

#include <gtest/gtest.h>

#include <QPointer>

#include "Tests/QtWidgets/Shop.hpp"

namespace proupsells::tests {

class Widgets : public testing::Test {
protected:
    qtwidgets::ControllerWidget& show(QWidget* parent = nullptr) {
        widget = new qtwidgets::ControllerWidget(screen, parent);
        widget->resize(100, 80);
        (parent ? parent : widget.data())->show();
        settle();
        return *widget;
    }
    ~Widgets() override { delete widget; }

    QRgb pixel(int x, int y) const { return widget->grab().toImage().pixel(x, y) & 0xFFFFFF; }

    std::shared_ptr<TwoButtons> screen = std::make_shared<TwoButtons>();
    QPointer<qtwidgets::ControllerWidget> widget;
};

} // namespace proupsells::tests

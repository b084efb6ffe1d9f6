// A screen in a dialog of its own.
#pragma once

#include <QDialog>

#include "Backends/QtWidgets/ControllerWidget.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtwidgets {

// Presents a controller: show it with open(), exec() or show(). It closes when the controller is dismissed, by its close button, by
// Escape, by the window's own close button or by the host. finished() comes after the controller has heard that it was closed.
class PROUPSELLS_EXPORT ControllerDialog : public QDialog {
    Q_OBJECT

public:
    // As large as the controller prefers to be, where the screen has room for it.
    explicit ControllerDialog(std::shared_ptr<uikit::UIViewController> controller, QWidget* parent = nullptr);

    // What the controller is shown in; owned by the dialog.
    ControllerWidget& widget() const { return *m_widget; }

    // What Qt calls for Escape and for the window's close button: the controller's own close button does the same.
    void reject() override;
    // Takes the controller away, then ends the dialog.
    void done(int result) override;

private:
    ControllerWidget* m_widget; // owned by Qt's tree
};

} // namespace proupsells::qtwidgets

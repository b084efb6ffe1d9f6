#include "Backends/QtWidgets/ControllerDialog.hpp"

#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

namespace proupsells::qtwidgets {

ControllerDialog::ControllerDialog(std::shared_ptr<uikit::UIViewController> controller, QWidget* parent)
    : QDialog(parent), m_widget(new ControllerWidget(std::move(controller), this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_widget);
    setFocusProxy(m_widget);
    // Qt would not make it higher than two thirds of the screen.
    resize(m_widget->sizeHint().boundedTo(screen()->availableSize()));
    connect(m_widget, &ControllerWidget::dismissalRequested, this, [this] { done(Rejected); });
}

void ControllerDialog::reject() {
    uikit::UIViewController* const controller = m_widget->controller();
    const auto kept = controller ? uikit::strongReference(*controller) : nullptr;
    const QPointer<ControllerDialog> self(this);
    if (kept) kept->accessibilityPerformEscape();
    // A screen that stands over another one was closed instead, or the controller has no close button.
    if (self && m_widget->controller()) done(Rejected);
}

void ControllerDialog::done(int result) {
    const QPointer<ControllerDialog> self(this);
    m_widget->setController(nullptr);
    if (self) QDialog::done(result);
}

} // namespace proupsells::qtwidgets

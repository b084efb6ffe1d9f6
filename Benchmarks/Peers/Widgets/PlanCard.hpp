// One plan that can be chosen.
#pragma once

#include <QAbstractButton>
#include <QString>

#include "Widgets/Parts.hpp"

class QHBoxLayout;

namespace peers::widgets {

struct Plan {
    QString title;
    QString compare;
    QString price;
    QString rest;
    QString badge;
    bool hasTrial;
};

class PlanCard final : public QAbstractButton {
public:
    explicit PlanCard(const Plan& plan);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* makeTitleRow(const Plan& plan);

    // Absent where the plan has no trial.
    QLabel* m_capsule = nullptr;
};

} // namespace peers::widgets

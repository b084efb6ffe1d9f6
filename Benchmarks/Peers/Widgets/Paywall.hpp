// The paywall, made of layouts in a scroll area.
#pragma once

#include <QWidget>
#include <array>

#include "Widgets/Carousel.hpp"
#include "Widgets/PlanCard.hpp"

class QVBoxLayout;

namespace peers::widgets {

class Paywall final : public QWidget {
public:
    Paywall(const Assets& assets, Carousel::Motion motion, QWidget* parent = nullptr);

    // Where the card with this number is tapped.
    QPoint cardPlace(int card) const;
    bool isSelected(int card) const { return m_selected == card && m_cards[card]->isChecked(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeContent(const Assets& assets, Carousel::Motion motion);
    void addPlans(QVBoxLayout& column);
    void addPurchase(QVBoxLayout& column);
    void select(int card);

    std::array<PlanCard*, 2> m_cards{};
    BuyButton* m_buy = nullptr;
    QLabel* m_disclaimer = nullptr;
    Badge* m_badge = nullptr;
    int m_selected = 0;
};

} // namespace peers::widgets

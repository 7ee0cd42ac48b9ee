// The first screen: where the period stands, the money, the result, what is to do.
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "desktop/overview/figures.h"

namespace desktop {

class Card;
class TodoCard;

class OverviewPage : public QWidget {
public:
    explicit OverviewPage(QWidget* parent);
    void refresh();
    const Figures& figures() const { return figures_; }
    std::function<void(int code)> on_open;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void add(Card* card);
    Figures figures_;
    std::vector<Card*> cards_;
    TodoCard* todo_;
};

} // namespace desktop

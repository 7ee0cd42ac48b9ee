// The first screen: where the period stands, the money, the result, what is to do.
#pragma once

#include <QScrollArea>

#include <functional>
#include <vector>

#include "desktop/overview/figures.h"

class QBoxLayout;
class QPainter;

namespace desktop {

class Card;
class TodoCard;

// In a low window it scrolls; in a narrow one the cards that stand side by side stand below each
// other.
class OverviewPage : public QScrollArea {
public:
    explicit OverviewPage(QWidget* parent);
    void refresh();
    const Figures& figures() const { return figures_; }
    std::function<void(int code)> on_open;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    class Sheet;
    void add(Card* card);
    void lay_out();
    void paint_head(QPainter& painter, const QRect& line) const;
    Figures figures_;
    QWidget* sheet_;
    QBoxLayout* middle_;
    std::vector<Card*> cards_;
    TodoCard* todo_;
};

} // namespace desktop

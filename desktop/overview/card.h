// A card of the overview: a border, a head with title and hint, a body that its kind paints.
#pragma once

#include <QWidget>

#include <functional>

#include "desktop/overview/figures.h"

namespace desktop {

class Card : public QWidget {
public:
    Card(const QString& title, QWidget* parent);
    virtual void show_figures(const Figures& figures);
    std::function<void(int code)> on_open;

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void paint_body(QPainter& painter, const QRect& body) = 0;
    virtual QString hint() const { return {}; }
    virtual QString right_hint() const { return {}; }
    const Figures& figures() const { return figures_; }
    static constexpr int head_height = 37; // the title's line with its rule below; pixels

private:
    QString title_;
    Figures figures_;
};

// Amounts of the overview have two decimals, as everywhere.
QString amount_of(host::Amount amount);
// Stands in a card whose figures the person may not see.
QString no_right();

// The road of a period: enter, audit, post, carry forward, close; the next step has its button.
class StepsCard : public Card {
public:
    explicit StepsCard(QWidget* parent);
    void show_figures(const Figures& figures) override;
    int next_step() const { return next_; } // 0 to 4

protected:
    void paintEvent(QPaintEvent* event) override;
    void paint_body(QPainter& painter, const QRect& body) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect step_rect(int step) const;
    void paint_step(QPainter& painter, int step);
    void place_button();
    class HintedButton* button_;
    int next_ = 0;
};

// Opening, in, out and closing of the cash and bank accounts.
class CashCard : public Card {
public:
    explicit CashCard(QWidget* parent);

protected:
    void paint_body(QPainter& painter, const QRect& body) override;
    QString hint() const override;
};

// The result of each month of the year as columns.
class ProfitCard : public Card {
public:
    explicit ProfitCard(QWidget* parent);

protected:
    void paint_body(QPainter& painter, const QRect& body) override;
    QString hint() const override;
    QString right_hint() const override;

private:
    void paint_scale(QPainter& painter, const QRect& plot, std::int64_t low, std::int64_t high);
};

// What is to do, most urgent first; Enter opens it.
class TodoCard : public Card {
public:
    explicit TodoCard(QWidget* parent);
    void show_figures(const Figures& figures) override;
    struct Item {
        std::string icon;
        QString what, detail;
        int code = 0;     // 0: nothing to open
        bool warning = false;
        bool amount = false; // the detail is one
    };
    const std::vector<Item>& items() const { return items_; }

protected:
    void paint_body(QPainter& painter, const QRect& body) override;
    QString hint() const override;
    QString right_hint() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void open(int index);
    std::vector<Item> items_;
    int current_ = 0;
};

} // namespace desktop

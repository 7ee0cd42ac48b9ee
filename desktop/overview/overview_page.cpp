// Lays the cards out and reads the figures for them.
#include "desktop/overview/overview_page.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/overview/card.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int page_head = 48, middle_height = 256, least_plot = 260;
constexpr int narrow = 900; // the amounts of the cash card and a list beside them need more

} // namespace

// What scrolls: the head and the cards on the ground of a document.
class OverviewPage::Sheet : public QWidget {
public:
    explicit Sheet(OverviewPage& page) : page_(page) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), token::paper_1);
        page_.paint_head(painter, QRect(16, 0, width() - 32, page_head));
    }

private:
    OverviewPage& page_;
};

OverviewPage::OverviewPage(QWidget* parent)
    : QScrollArea(parent), sheet_(new Sheet(*this)),
      middle_(new QBoxLayout(QBoxLayout::LeftToRight)), todo_(new TodoCard(sheet_)) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lay_out();
    setWidget(sheet_);
    refresh();
}

void OverviewPage::lay_out() {
    auto* column = new QVBoxLayout(sheet_);
    column->setContentsMargins(16, 0, 16, 16);
    column->setSpacing(0);
    auto* top = new QHBoxLayout;
    auto* refresh_button = new HintedButton(sheet_, ButtonLook::Tool);
    refresh_button->set_drawing("refresh-cw");
    refresh_button->set_texts(QStringLiteral("刷新"), "F5");
    refresh_button->setFocusPolicy(Qt::NoFocus);
    connect(refresh_button, &QPushButton::clicked, this, [this] { refresh(); });
    top->addStretch(1);
    top->addWidget(refresh_button);
    top->setContentsMargins(0, 10, 0, 10);
    column->addLayout(top);
    auto* steps = new StepsCard(sheet_);
    auto* cash = new CashCard(sheet_);
    auto* profit = new ProfitCard(sheet_);
    cash->setFixedHeight(middle_height);
    todo_->setFixedHeight(middle_height);
    profit->setMinimumHeight(least_plot);
    column->addWidget(steps);
    column->addSpacing(16);
    middle_->setSpacing(16);
    middle_->addWidget(cash, 5);
    middle_->addWidget(todo_, 4);
    column->addLayout(middle_);
    column->addSpacing(16);
    column->addWidget(profit, 1);
    for (Card* card : {static_cast<Card*>(steps), static_cast<Card*>(cash),
                       static_cast<Card*>(profit), static_cast<Card*>(todo_)})
        add(card);
}

void OverviewPage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    middle_->setDirection(width() < narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void OverviewPage::add(Card* card) {
    cards_.push_back(card);
    card->on_open = [this](int code) {
        if (on_open) on_open(code);
    };
}

void OverviewPage::refresh() {
    figures_ = read_figures();
    for (Card* card : cards_) card->show_figures(figures_);
    sheet_->update();
}

void OverviewPage::paint_head(QPainter& painter, const QRect& line) const {
    const QString period = qt(figures_.period);
    painter.setFont(fonts::key_figure());
    painter.setPen(token::ink_1);
    const QString title =
        period.isEmpty()
            ? QStringLiteral("没有建帐")
            : QStringLiteral("%1年%2月").arg(period.left(4)).arg(period.mid(5).toInt());
    painter.drawText(line, Qt::AlignVCenter, title);
    const int used = painter.fontMetrics().horizontalAdvance(title) + 16;
    painter.setFont(fonts::small());
    painter.setPen(token::ink_3);
    if (!period.isEmpty())
        painter.drawText(line.adjusted(used, 3, 0, 0), Qt::AlignVCenter,
                         QStringLiteral("当前会计期间 %1        帐套启用 %2")
                             .arg(period, qt(figures_.first_period)));
}

void OverviewPage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F5) return refresh();
    QScrollArea::keyPressEvent(event);
}

void OverviewPage::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    todo_->setFocus();
}

} // namespace desktop

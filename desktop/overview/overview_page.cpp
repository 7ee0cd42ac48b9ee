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

constexpr int head = 48;

} // namespace

OverviewPage::OverviewPage(QWidget* parent) : QWidget(parent), todo_(new TodoCard(this)) {
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 0, 16, 16);
    column->setSpacing(0);
    auto* top = new QHBoxLayout;
    auto* refresh_button = new HintedButton(this, ButtonLook::Tool);
    refresh_button->set_drawing("refresh-cw");
    refresh_button->set_texts(QStringLiteral("刷新"), "F5");
    refresh_button->setFocusPolicy(Qt::NoFocus);
    connect(refresh_button, &QPushButton::clicked, this, [this] { refresh(); });
    top->addStretch(1);
    top->addWidget(refresh_button);
    top->setContentsMargins(0, 10, 0, 10);
    column->addLayout(top);
    auto* steps = new StepsCard(this);
    auto* cash = new CashCard(this);
    auto* profit = new ProfitCard(this);
    cash->setFixedHeight(256);
    todo_->setFixedHeight(256);
    column->addWidget(steps);
    column->addSpacing(16);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(16);
    middle->addWidget(cash, 5);
    middle->addWidget(todo_, 4);
    column->addLayout(middle);
    column->addSpacing(16);
    column->addWidget(profit, 1);
    for (Card* card : {static_cast<Card*>(steps), static_cast<Card*>(cash),
                       static_cast<Card*>(profit), static_cast<Card*>(todo_)})
        add(card);
    refresh();
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
    update();
}

void OverviewPage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_1);
    const QString period = qt(figures_.period);
    const QRect line(16, 0, width() - 32, head);
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
    QWidget::keyPressEvent(event);
}

void OverviewPage::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    todo_->setFocus();
}

} // namespace desktop

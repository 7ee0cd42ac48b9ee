// The five steps of a period and where the books stand among them.
#include <QMouseEvent>
#include <QPainter>

#include "desktop/overview/card.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/values/period.h"

namespace desktop {
namespace {

struct Step {
    const char* name;
    const char* action; // text of its button
    int code;
};

constexpr Step steps[] = {{"录入", "录入凭证", 661}, {"审核", "审核凭证", 662},
                          {"登帐", "凭证登帐", 663}, {"结转", "结转损溢", 667},
                          {"结帐", "期末结帐", 668}};
constexpr int count = 5, words_beside = 150;

QString state_of(int step, const Figures& figures) {
    const auto period = host::Period::parse(figures.period);
    if (!figures.may_see_vouchers) return {};
    switch (step) {
    case 0: return QStringLiteral("本期 %1 张凭证").arg(figures.vouchers);
    case 1:
        return figures.unaudited > 0 ? QStringLiteral("未审凭证 %1 张").arg(figures.unaudited)
                                     : QStringLiteral("全部已审");
    case 2:
        return figures.unposted > 0 ? QStringLiteral("已审未登帐 %1 张").arg(figures.unposted)
                                    : QStringLiteral("没有待登帐的凭证");
    case 3:
        return figures.carried_forward ? QStringLiteral("本期损溢已结转")
                                       : QStringLiteral("本期损溢未结转");
    default:
        return period ? QStringLiteral("下一期间 ") + qt(period->next().to_text()) : QString();
    }
}

int first_open(const Figures& figures) {
    if (figures.vouchers == 0) return 0;
    if (figures.unaudited > 0) return 1;
    if (figures.unposted > 0) return 2;
    return figures.carried_forward ? 4 : 3;
}

} // namespace

StepsCard::StepsCard(QWidget* parent)
    : Card(QStringLiteral("本期进度"), parent), button_(new HintedButton(this, ButtonLook::Primary)) {
    setFixedHeight(72);
    connect(button_, &QPushButton::clicked, this, [this] {
        if (on_open) on_open(steps[next_].code);
    });
}

void StepsCard::show_figures(const Figures& figures) {
    next_ = first_open(figures);
    button_->set_texts(QString::fromUtf8(steps[next_].action), QString::number(steps[next_].code));
    Card::show_figures(figures);
    place_button();
}

// The next step is half as wide again as the others: it holds the button.
QRect StepsCard::step_rect(int step) const {
    const double unit = (width() - 16) / (count + 0.5);
    double x = 8;
    for (int i = 0; i < step; ++i) x += i == next_ ? unit * 1.5 : unit;
    return QRect(static_cast<int>(x), 8, static_cast<int>(step == next_ ? unit * 1.5 : unit), 56);
}

void StepsCard::place_button() {
    const QRect box = step_rect(next_);
    const QSize size = button_->sizeHint();
    // Where it would cover the words, pressing the step itself does as well.
    button_->setVisible(!figures().period.empty() && box.width() > size.width() + words_beside);
    button_->setGeometry(box.right() - size.width() - 20, box.y() + (56 - size.height()) / 2,
                         size.width(), size.height());
}

void StepsCard::resizeEvent(QResizeEvent*) { place_button(); }

void StepsCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(token::rule_2);
    painter.setBrush(token::paper_0);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    paint_body(painter, rect());
}

void StepsCard::paint_body(QPainter& painter, const QRect& body) {
    if (figures().period.empty()) {
        painter.setPen(token::ink_2);
        painter.drawText(body, Qt::AlignCenter,
                         QStringLiteral("没有初始建帐！请从“会计科目初始”（699）进行首次建帐。"));
        return;
    }
    for (int step = 0; step < count; ++step) paint_step(painter, step);
}

void StepsCard::paint_step(QPainter& painter, int step) {
    const QRect box = step_rect(step).adjusted(0, 0, -14, 0);
    const bool next = step == next_, done = step < next_;
    if (next) {
        painter.setPen(token::indigo_5);
        painter.setBrush(token::indigo_4);
        painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    const QRect circle(box.x() + 12, box.y() + 16, 24, 24);
    painter.setPen(next ? token::indigo_1 : done ? token::ink_2 : token::rule_3);
    painter.setBrush(next ? token::indigo_1 : done ? token::ink_2 : token::paper_0);
    painter.drawEllipse(QRectF(circle).adjusted(0.5, 0.5, -0.5, -0.5));
    if (done) {
        icons::paint(painter, "check", circle, 14, Qt::white);
    } else {
        painter.setFont(fonts::small());
        painter.setPen(next ? QColor(Qt::white) : token::ink_3);
        painter.drawText(circle, Qt::AlignCenter, QString::number(step + 1));
    }
    const QRect words = box.adjusted(48, 8, 0, -8);
    painter.setFont(fonts::body(true));
    painter.setPen(next ? token::indigo_1 : done ? token::ink_1 : token::ink_3);
    painter.drawText(words, Qt::AlignTop | Qt::AlignLeft, QString::fromUtf8(steps[step].name));
    painter.setFont(fonts::small());
    painter.setPen(next || done ? token::ink_2 : token::ink_3);
    const QString state = state_of(step, figures());
    painter.drawText(words, Qt::AlignBottom | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(state, Qt::ElideRight, words.width()));
    if (!next && painter.fontMetrics().horizontalAdvance(state) + 40 < words.width()) {
        painter.setFont(fonts::tiny());
        painter.setPen(token::ink_3);
        painter.drawText(box.adjusted(0, 0, -8, 0), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(steps[step].code));
    }
    if (step + 1 == count) return;
    painter.setPen(token::rule_2);
    const QPoint tip(box.right() + 12, box.center().y());
    painter.drawLine(QPoint(box.right() + 1, box.top()), tip);
    painter.drawLine(tip, QPoint(box.right() + 1, box.bottom()));
}

void StepsCard::mouseReleaseEvent(QMouseEvent* event) {
    for (int step = 0; step < count; ++step)
        if (step_rect(step).contains(event->position().toPoint()) && on_open)
            return on_open(steps[step].code);
}

} // namespace desktop

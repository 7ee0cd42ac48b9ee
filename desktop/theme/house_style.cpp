// Paints check boxes and radio buttons; leaves the rest to Fusion and the style sheet.
#include "desktop/theme/house_style.h"

#include <QPainter>
#include <QStyleOption>

#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int mark = 14;

void paint_radio(QPainter& painter, const QRect& box, bool checked, bool focus) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setBrush(token::paper_0);
    if (focus) { // a ring of its own, and room between it and the dot
        painter.setPen(QPen(token::indigo_2, 2));
        painter.drawEllipse(circle.adjusted(0.5, 0.5, -0.5, -0.5));
        painter.setPen(Qt::NoPen);
        painter.setBrush(token::indigo_1);
        if (checked) painter.drawEllipse(circle.adjusted(3.5, 3.5, -3.5, -3.5));
    } else if (checked) {
        painter.setPen(QPen(token::indigo_1, 4));
        painter.drawEllipse(circle.adjusted(1.5, 1.5, -1.5, -1.5));
    } else {
        painter.setPen(token::rule_3);
        painter.drawEllipse(circle);
    }
    painter.restore();
}

// The one thing that shows the focus on a check box: a ring around it.
void paint_ring(QPainter& painter, const QRect& box) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(token::indigo_2, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(box).adjusted(-1, -1, 1, 1), 3, 3);
    painter.restore();
}

} // namespace

void paint_check_box(QPainter& painter, const QRect& area, bool checked, bool enabled) {
    const QRect box(area.x() + (area.width() - mark) / 2, area.y() + (area.height() - mark) / 2,
                    mark, mark);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = !enabled && checked ? token::ink_4 : token::indigo_1;
    painter.setPen(checked ? ground : token::rule_3);
    painter.setBrush(checked ? ground : token::paper_0);
    painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    if (checked) {
        painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF o = box.topLeft();
        const QPointF tick[] = {o + QPointF(3.6, 7.2), o + QPointF(6.0, 9.6),
                                o + QPointF(10.6, 4.6)};
        painter.drawPolyline(tick, 3);
    }
    painter.restore();
}

HouseStyle::HouseStyle() : QProxyStyle("fusion") {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const bool focus = option->state & State_HasFocus;
    switch (element) {
    case PE_FrameFocusRect: return;
    case PE_IndicatorCheckBox:
        if (focus) paint_ring(*painter, option->rect);
        paint_check_box(*painter, option->rect, option->state & State_On,
                        option->state & State_Enabled);
        return;
    case PE_IndicatorRadioButton:
        paint_radio(*painter, option->rect, option->state & State_On, focus);
        return;
    case PE_IndicatorArrowDown:
        icons::paint(*painter, "chevron-down", option->rect, 12, token::ink_3);
        return;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

// The ground behind the last section of a header is painted by the header itself.
void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (element != CE_HeaderEmptyArea)
        QProxyStyle::drawControl(element, option, painter, widget);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return mark;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing: return 6;
    case PM_SmallIconSize: return 16;
    case PM_SplitterWidth: return 8;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText: return 0;
    case SH_ComboBox_Popup: return 0;
    case SH_UnderlineShortcut: return 1;
    default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace desktop

// Fusion without its dated parts: own check marks, no dotted focus rectangles.
#pragma once

#include <QProxyStyle>

class QPainter;
class QRect;

namespace desktop {

// A check box 14 pixels wide, the same in forms and in the cells of a grid.
void paint_check_box(QPainter& painter, const QRect& box, bool checked, bool enabled = true);

class HouseStyle : public QProxyStyle {
public:
    HouseStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace desktop

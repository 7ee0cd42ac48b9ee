// Ink at 18 % over everything in the window.
#include "desktop/dialogs/veil.h"

#include <QPainter>

#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class Shade : public QWidget {
public:
    explicit Shade(QWidget* window) : QWidget(window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName("veil");
        setGeometry(window->rect());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QColor ink = token::ink_1;
        ink.setAlphaF(0.18F);
        QPainter(this).fillRect(rect(), ink);
    }
};

} // namespace

Veil::Veil(QWidget* below) {
    if (!below) return;
    shade_ = new Shade(below->window());
    shade_->show();
    shade_->raise();
}

Veil::~Veil() { delete shade_.data(); }

} // namespace desktop

// Paints the caption bar and lets the dialog be moved by it.
#include "desktop/dialogs/panel_dialog.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "desktop/dialogs/veil.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int caption_height = 36;

} // namespace

PanelDialog::PanelDialog(const QString& caption, QWidget* over, bool bold_caption)
    : QDialog(over, Qt::Dialog | Qt::FramelessWindowHint), caption_(caption), bold_(bold_caption),
      body_(new QVBoxLayout(this)) {
    setWindowTitle(caption);
    setModal(true);
    setMouseTracking(true);
    body_->setContentsMargins(1, caption_height, 1, 1);
    body_->setSpacing(0);
}

int PanelDialog::run() {
    Veil veil(parentWidget());
    const int result = exec();
    // Not every window system hands the focus back by itself.
    if (parentWidget()) parentWidget()->window()->activateWindow();
    return result;
}

void PanelDialog::add_rule() {
    auto* rule = new QFrame(this);
    rule->setFixedHeight(1);
    rule->setAutoFillBackground(true);
    QPalette line = rule->palette();
    line.setColor(QPalette::Window, token::rule_1);
    rule->setPalette(line);
    body_->addWidget(rule);
}

void PanelDialog::reject() { QDialog::reject(); }

QRect PanelDialog::cross() const { return {width() - 34, 1, 32, caption_height - 2}; }

void PanelDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // As large as its parts ask for: what does not fit is cut off, and nobody enlarges a dialog.
    QSize natural = sizeHint().expandedTo(minimumSize());
    if (hasHeightForWidth())
        natural.setHeight(std::max(heightForWidth(natural.width()), minimumHeight()));
    resize(natural);
    if (QWidget* over = parentWidget()) {
        const QRect below = over->window()->geometry();
        const QPoint at = below.center() - QPoint(width() / 2, height() / 2 + below.height() / 24);
        // Its caption bar is always in reach.
        move(at.x(), std::max(at.y(), below.top()));
    }
}

void PanelDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_1);
    painter.fillRect(0, 0, width(), caption_height, token::paper_2);
    painter.fillRect(0, caption_height - 1, width(), 1, token::rule_2);
    painter.setFont(fonts::body(bold_));
    painter.setPen(token::ink_1);
    painter.drawText(QRect(16, 0, width() - 60, caption_height), Qt::AlignVCenter, caption_);
    icons::paint(painter, "x", cross(), 14, token::ink_2);
    painter.setPen(token::rule_3);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PanelDialog::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (cross().contains(at)) return leave();
    if (at.y() >= caption_height) return;
    // The system moves the window where it can; elsewhere the dialog moves itself.
    if (windowHandle() && windowHandle()->startSystemMove()) return;
    dragging_ = true;
    grip_ = at;
}

void PanelDialog::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) move(event->globalPosition().toPoint() - grip_);
}

void PanelDialog::mouseReleaseEvent(QMouseEvent*) { dragging_ = false; }

void PanelDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return leave();
    event->ignore(); // Qt would press a default button here; which one that is, is not its affair
}

QWidget* window_in_front() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == "frame") return window;
    return nullptr;
}

} // namespace desktop

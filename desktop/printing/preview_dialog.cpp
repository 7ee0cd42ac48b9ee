// The tools above, the page below.
#include "desktop/printing/preview_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/message_dialog.h"
#include "desktop/printing/page_canvas.h"
#include "desktop/printing/pdf_file.h"
#include "desktop/printing/print_job.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/forms/parts/text_file.h"
#include "host/printing/paper.h"

namespace desktop {
namespace {

constexpr double step = 1.2;

QSize size_over(const QWidget* over) {
    return over ? over->window()->size() * 0.92 : QSize(1200, 800);
}

} // namespace

PreviewDialog::PreviewDialog(const host::PaperDocument& document, QWidget* over)
    : PanelDialog(QStringLiteral("预览 ") + qt(document.title()), over), document_(document),
      canvas_(new PageCanvas(document, this)), area_(new QScrollArea(this)),
      place_(new QLabel(this)) {
    setObjectName("preview");
    setFixedSize(size_over(over));
    build_tools();
    area_->setWidget(canvas_);
    area_->setAlignment(Qt::AlignCenter);
    area_->setFrameShape(QFrame::NoFrame);
    QPalette ground = area_->palette();
    ground.setColor(QPalette::Window, token::paper_3);
    area_->setPalette(ground);
    area_->viewport()->installEventFilter(this);
    area_->setFocusPolicy(Qt::NoFocus);
    body()->addWidget(area_, 1);
    setFocusPolicy(Qt::StrongFocus);
    show_place();
}

HintedButton* PreviewDialog::tool(const char* icon, const QString& caption, const QString& hint,
                                  std::function<void()> work) {
    auto* button = new HintedButton(this, ButtonLook::Tool);
    button->set_drawing(icon);
    button->set_texts(caption, hint);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, std::move(work));
    return button;
}

void PreviewDialog::build_tools() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(2);
    row->addWidget(tool("printer", "打印", "Ctrl+P", [this] { print(); }));
    row->addWidget(tool("file-down", "存为 PDF", "Ctrl+S", [this] { save_pdf(); }));
    row->addSpacing(16);
    back_ = tool("chevron-up", "上一页", "PgUp", [this] { turn_to(page() - 1); });
    forward_ = tool("chevron-down", "下一页", "PgDn", [this] { turn_to(page() + 1); });
    row->addWidget(back_);
    place_->setFont(fonts::body());
    place_->setObjectName("place");
    place_->setAlignment(Qt::AlignCenter);
    place_->setMinimumWidth(120);
    row->addWidget(place_);
    row->addWidget(forward_);
    row->addSpacing(16);
    row->addWidget(tool("search", "放大", "+", [this] { zoom_to(canvas_->zoom() * step); }));
    row->addWidget(tool("search", "缩小", "-", [this] { zoom_to(canvas_->zoom() / step); }));
    row->addWidget(tool("file-text", "整页", "0", [this] {
        zoom_to(canvas_->zoom_for_page(area_->viewport()->size()));
    }));
    row->addWidget(tool("book-open", "页宽", "W", [this] {
        zoom_to(canvas_->zoom_for_width(area_->viewport()->width()));
    }));
    row->addStretch(1);
    row->addWidget(tool("log-out", "关闭", "Esc", [this] { leave(); }));
    body()->addLayout(row);
}

int PreviewDialog::page() const { return canvas_->page(); }

void PreviewDialog::show_place() {
    const int count = document_.page_count();
    place_->setText(QStringLiteral("第 %1 页 共 %2 页").arg(page() + 1).arg(count));
    back_->setEnabled(page() > 0);
    forward_->setEnabled(page() + 1 < count);
}

void PreviewDialog::turn_to(int page) {
    canvas_->turn_to(page);
    area_->verticalScrollBar()->setValue(0);
    show_place();
}

void PreviewDialog::zoom_to(double zoom) { canvas_->set_zoom(zoom); }

// The first look shows the page as wide as it can be read, but not larger than it is.
void PreviewDialog::showEvent(QShowEvent* event) {
    PanelDialog::showEvent(event);
    if (shown_) return;
    shown_ = true;
    layout()->activate();
    zoom_to(qMin(canvas_->zoom_for_width(area_->viewport()->width()), 1.4));
    setFocus();
}

void PreviewDialog::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers() & Qt::ControlModifier;
    QScrollBar* bar = area_->verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_PageDown: return turn_to(page() + 1);
    case Qt::Key_PageUp: return turn_to(page() - 1);
    case Qt::Key_Home: return turn_to(0);
    case Qt::Key_End: return turn_to(document_.page_count() - 1);
    case Qt::Key_Down: return bar->setValue(bar->value() + 40);
    case Qt::Key_Up: return bar->setValue(bar->value() - 40);
    case Qt::Key_Plus:
    case Qt::Key_Equal: return zoom_to(canvas_->zoom() * step);
    case Qt::Key_Minus: return zoom_to(canvas_->zoom() / step);
    case Qt::Key_0: return zoom_to(canvas_->zoom_for_page(area_->viewport()->size()));
    case Qt::Key_W: return zoom_to(canvas_->zoom_for_width(area_->viewport()->width()));
    case Qt::Key_P:
        if (control) return print();
        break;
    case Qt::Key_S:
        if (control) return save_pdf();
        break;
    default: break;
    }
    PanelDialog::keyPressEvent(event);
}

bool PreviewDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        auto* wheel = static_cast<QWheelEvent*>(event);
        if (wheel->modifiers() & Qt::ControlModifier) {
            zoom_to(canvas_->zoom() * (wheel->angleDelta().y() > 0 ? step : 1 / step));
            return true;
        }
    }
    return PanelDialog::eventFilter(watched, event);
}

void PreviewDialog::print() { print_document(document_, this); }

void PreviewDialog::save_pdf() {
    const std::string title = document_.title();
    const auto file = choose_file("存为 PDF", host::file_name(title, "pdf"), {{"PDF 文件", "pdf"}},
                                  this);
    if (!file) return;
    const std::string trouble = write_pdf(document_, *file);
    const std::string pages = std::to_string(document_.page_count());
    show_message(qt(title), trouble.empty() ? "已把 " + pages + " 页存到 " + *file : trouble, this);
}

} // namespace desktop

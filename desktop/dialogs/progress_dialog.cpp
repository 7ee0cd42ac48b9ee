// Keeps the window alive while long work runs, and tells it when to stop.
#include "desktop/dialogs/progress_dialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "desktop/dialogs/panel_dialog.h"
#include "desktop/dialogs/veil.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"

namespace desktop {
namespace {

constexpr int moment = 400; // milliseconds that need no dialog

} // namespace

ProgressDialog::ProgressDialog() = default;
ProgressDialog::~ProgressDialog() = default;

void ProgressDialog::open() {
    QWidget* below = window_in_front();
    veil_ = std::make_unique<Veil>(below);
    dialog_ = std::make_unique<PanelDialog>(QStringLiteral("请稍候"), below);
    dialog_->setObjectName("progress");
    dialog_->setFixedWidth(420);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(20, 16, 20, 12);
    column->setSpacing(10);
    auto* texts = new QHBoxLayout;
    words_ = new QLabel(dialog_.get());
    count_ = new QLabel(dialog_.get());
    count_->setFont(fonts::small());
    texts->addWidget(words_);
    texts->addStretch(1);
    texts->addWidget(count_);
    column->addLayout(texts);
    bar_ = new QProgressBar(dialog_.get());
    bar_->setTextVisible(false);
    bar_->setRange(0, 1000);
    column->addWidget(bar_);
    auto* stop = new HintedButton(dialog_.get(), ButtonLook::Plain);
    stop->set_texts(QStringLiteral("取消"), "Esc");
    QObject::connect(stop, &QPushButton::clicked, dialog_.get(), &QDialog::reject);
    QObject::connect(dialog_.get(), &QDialog::rejected, dialog_.get(), [this] { stopped_ = true; });
    column->addWidget(stop, 0, Qt::AlignRight);
    dialog_->body()->addLayout(column);
    dialog_->show();
}

bool ProgressDialog::report(const std::string& what, std::int64_t done, std::int64_t total) {
    if (!since_.isValid()) {
        since_.start();
        stopped_ = false;
    }
    if (total > 0 && done >= total) {
        const bool go_on = !stopped_;
        end();
        return go_on;
    }
    if (!dialog_ && since_.elapsed() < moment) return true;
    if (!dialog_) open();
    words_->setText(qt(what));
    count_->setText(total > 0 ? QStringLiteral("%1 / %2").arg(done).arg(total)
                              : QString::number(done));
    bar_->setVisible(total > 0);
    if (total > 0) bar_->setValue(static_cast<int>(done * 1000 / total));
    QApplication::processEvents();
    return !stopped_;
}

void ProgressDialog::end() {
    dialog_.reset();
    veil_.reset();
    since_.invalidate();
    stopped_ = false;
}

} // namespace desktop

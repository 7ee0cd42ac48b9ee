// The message and the question: an icon, selectable text, the buttons with their keys.
#include "desktop/dialogs/message_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include "desktop/dialogs/panel_dialog.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int message_width = 488, icon = 28;

class MessageDialog : public PanelDialog {
public:
    MessageDialog(const QString& title, const std::string& text, const std::string& drawing,
                  QWidget* over, const QColor& ink = token::indigo_1)
        : PanelDialog(title, over, false) {
        setObjectName("message");
        setFixedWidth(message_width);
        auto* row = new QHBoxLayout;
        row->setContentsMargins(20, 14, 20, 14);
        row->setSpacing(16);
        auto* picture = new QLabel(this);
        picture->setPixmap(icons::pixmap(drawing, icon, ink, devicePixelRatioF()));
        row->addWidget(picture, 0, Qt::AlignTop);
        auto* words = new QLabel(qt(text), this);
        words->setObjectName("text");
        words->setTextFormat(Qt::PlainText);
        words->setFont(fonts::message());
        words->setWordWrap(true);
        words->setTextInteractionFlags(Qt::TextSelectableByMouse);
        // A wrapped label asks for more height than its text needs.
        const int room = message_width - 2 - 2 * 20 - icon - 16;
        const QRect text_box =
            QFontMetrics(fonts::message())
                .boundingRect(QRect(0, 0, room, 4000), Qt::TextWordWrap, qt(text));
        words->setFixedHeight(std::max(icon, text_box.height() + 4));
        row->addWidget(words, 1);
        body()->addLayout(row);
        add_rule();
        buttons_ = new QHBoxLayout;
        buttons_->setContentsMargins(14, 10, 14, 10);
        buttons_->setSpacing(8);
        buttons_->addStretch(1);
        body()->addLayout(buttons_);
    }

    // The key presses the button from anywhere in the dialog; Enter presses the filled one.
    HintedButton* add_button(const QString& caption, const QString& hint, bool filled, int key,
                             int answer) {
        auto* button = new HintedButton(this, filled ? ButtonLook::Primary : ButtonLook::Plain);
        button->set_texts(caption, hint);
        buttons_->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
        keys_.emplace_back(key, answer);
        if (filled) {
            keys_.emplace_back(Qt::Key_Return, answer);
            keys_.emplace_back(Qt::Key_Enter, answer);
            button->setFocus();
        }
        return button;
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const QWidget* at = focusWidget();
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (auto* button = qobject_cast<QPushButton*>(at ? focusWidget() : nullptr);
            enter && button)
            return button->click();
        for (const auto& [key, answer] : keys_)
            if (key == event->key()) return done(answer);
        if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
            focusNextPrevChild(event->key() == Qt::Key_Right);
            return;
        }
        PanelDialog::keyPressEvent(event);
    }

private:
    QHBoxLayout* buttons_;
    std::vector<std::pair<int, int>> keys_;
};

} // namespace

void show_message(const QString& title, const std::string& text, QWidget* over) {
    MessageDialog dialog(title, text, "info", over);
    dialog.add_button(QStringLiteral("确定"), "Enter", true, Qt::Key_Space, QDialog::Accepted);
    dialog.run();
}

void show_trouble(const QString& title, const std::string& text) {
    MessageDialog dialog(title, text, "triangle-alert", nullptr, token::cinnabar_1);
    dialog.add_button(QStringLiteral("确定"), "Enter", true, Qt::Key_Space, QDialog::Accepted);
    dialog.run();
}

bool ask_question(const QString& title, const std::string& text, QWidget* over) {
    MessageDialog dialog(title, text, "circle-help", over);
    dialog.add_button(QStringLiteral("是"), "Y", false, Qt::Key_Y, QDialog::Accepted);
    dialog.add_button(QStringLiteral("否"), "N", true, Qt::Key_N, QDialog::Rejected);
    return dialog.run() == QDialog::Accepted;
}

} // namespace desktop

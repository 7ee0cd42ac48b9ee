// The login: two fields, the refusal below them, OK and cancel.
#include "desktop/dialogs/login_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/dialogs/panel_dialog.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/renderers/justified_label.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

using TryLogin = std::function<std::string(const std::string&, const std::string&)>;

class LoginDialog : public PanelDialog {
public:
    LoginDialog(const std::string& company, const std::string& last_user, const TryLogin& try_login)
        : PanelDialog(QStringLiteral("登录 · ") + qt(company), nullptr), try_login_(try_login) {
        setObjectName("login");
        setFixedWidth(400);
        auto* column = new QVBoxLayout;
        column->setContentsMargins(24, 20, 24, 20);
        column->setSpacing(12);
        user_ = add_field(*column, QStringLiteral("用户"));
        password_ = add_field(*column, QStringLiteral("密码"));
        password_->setEchoMode(QLineEdit::Password);
        password_->setAttribute(Qt::WA_InputMethodEnabled, false);
        user_->setText(qt(last_user));
        refusal_ = new QLabel(this);
        refusal_->setObjectName("refusal");
        refusal_->setWordWrap(true);
        QPalette red = refusal_->palette();
        red.setColor(QPalette::WindowText, token::cinnabar_1);
        refusal_->setPalette(red);
        refusal_->hide();
        column->addWidget(refusal_);
        body()->addLayout(column);
        add_rule();
        add_buttons();
        (last_user.empty() ? user_ : password_)->setFocus();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && user_->hasFocus()) return password_->setFocus();
        if (enter || event->key() == Qt::Key_F2) return attempt();
        PanelDialog::keyPressEvent(event);
    }

private:
    FieldEdit* add_field(QVBoxLayout& column, const QString& label) {
        auto* row = new QHBoxLayout;
        auto* words = new JustifiedLabel(label, this);
        words->setFixedWidth(56);
        auto* edit = new FieldEdit(this);
        row->addWidget(words);
        row->addWidget(edit, 1);
        column.addLayout(row);
        return edit;
    }
    void add_buttons() {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(16, 12, 16, 12);
        row->setSpacing(8);
        row->addStretch(1);
        auto* ok = new HintedButton(this, ButtonLook::Primary);
        ok->set_texts(QStringLiteral("登录"), "Enter");
        connect(ok, &QPushButton::clicked, this, [this] { attempt(); });
        auto* cancel = new HintedButton(this, ButtonLook::Plain);
        cancel->set_texts(QStringLiteral("退出"), "Esc");
        connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
        row->addWidget(ok);
        row->addWidget(cancel);
        body()->addLayout(row);
    }
    void attempt() {
        const std::string refused = try_login_(utf8(user_->text()), utf8(password_->text()));
        if (refused.empty()) return accept();
        refusal_->setText(qt(refused));
        refusal_->show();
        password_->selectAll();
        password_->setFocus();
        adjustSize();
    }
    const TryLogin& try_login_;
    FieldEdit* user_;
    FieldEdit* password_;
    QLabel* refusal_;
};

} // namespace

bool log_in(const std::string& company, const std::string& last_user, const TryLogin& try_login) {
    LoginDialog dialog(company, last_user, try_login);
    return dialog.run() == QDialog::Accepted;
}

} // namespace desktop

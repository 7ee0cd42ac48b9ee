// Sets the desktop up, presses keys, answers what pops up.
#include "tests/desktop/desk.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <cstdlib>

#include "desktop/frame/snapshot.h"
#include "desktop/theme/text.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace tests {
namespace {

constexpr int look_every = 10; // milliseconds

void send(QWidget* to, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QTest::sendKeyEvent(QTest::Click, to, static_cast<Qt::Key>(key), text, modifiers);
}

QWidget* target() {
    if (QWidget* focus = QApplication::focusWidget()) return focus;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "frame") return window;
    return nullptr;
}

void press(const std::string& name) {
    const QString text = desktop::qt(name);
    if (text.size() == 1 && !text[0].isUpper()) {
        const int key = text[0].isDigit() || text[0].isLetter() ? text[0].toUpper().unicode()
                                                                : int(Qt::Key_unknown);
        return send(target(), key, Qt::NoModifier, text);
    }
    const QKeyCombination keys = QKeySequence::fromString(text)[0];
    const bool space = keys.key() == Qt::Key_Space;
    if (keys.keyboardModifiers() & Qt::ControlModifier)
        return QTest::keyClick(target(), keys.key(), keys.keyboardModifiers());
    send(target(), keys.key() == Qt::Key_Enter ? Qt::Key_Return : keys.key(),
         keys.keyboardModifiers(), space ? QStringLiteral(" ") : QString());
}

} // namespace

Desk::Desk(std::function<void(int)> open, const std::string& today,
           std::function<bool(const host::Right&)> may)
    : clock_(today) {
    host::Host& host = host::the_host();
    host.data = &data;
    host.clock = &clock_;
    host.settings = &settings_;
    host.random = &random_;
    host.ui = &interface_;
    if (may) host.may = std::move(may);
    data.answer("SELECT ID,PARAM FROM D6600", {"ID int", "PARAM text"},
                {{"1", "2014-01"}, {"2", "2016-06"}});
    data.answer("SELECT COUNT(*) AS N", {"N int", "U int", "P int", "S int"},
                {{"38", "3", "5", "0"}});
    data.answer("SELECT PZZ,COUNT(*)", {"PZZ text", "N int", "M int"}, {{"记", "38", "38"}});
    data.answer("SELECT V.KM_ID", {"KM_ID text", "KM_NAME text", "O money", "I money", "E money"},
                {{"1001", "现金", "6107.20", "15616.00", "14032.90"},
                 {"100201", "工行园区支行", "505635.67", "176500.00", "312244.33"},
                 {"100202", "建行新区支行", "132848.42", "95000.00", "10786.30"}});
    data.answer("SELECT B.QJ AS PZQJ,SUM", {"PZQJ text", "P money"},
                {{"2015-10", "31460"}, {"2015-11", "18325"}, {"2015-12", "9874"},
                 {"2016-01", "5768"}, {"2016-02", "-13019"}, {"2016-03", "21782"},
                 {"2016-04", "36270"}, {"2016-05", "42858"}});
    data.answer("SELECT H.PZQJ,SUM", {"PZQJ text", "P money"}, {{"2016-06", "31056"}});
    const std::string owed = "SELECT COUNT(*) AS PARTIES,ISNULL(SUM(XJYS),0) AS OWED FROM ";
    const std::vector<std::string> columns = {"PARTIES int", "OWED money"};
    data.answer(owed + "VD631 WHERE XJYS>0", columns, {{"4", "168340.50"}});
    data.answer(owed + "VD641 WHERE XJYS>0", columns, {{"2", "96000.00"}});
    desktop::DesktopServices services;
    services.books = [] {
        return desktop::BooksLabel{"苏州嘉禾贸易有限公司", "李敏", "jiahe.db", "本机", "小企业"};
    };
    services.open_function = std::move(open);
    services.open_administration = [this](const std::string& name) {
        administration.push_back(name);
    };
    services.has_function = [](const std::string& key) {
        return host::the_host().may({key, "open"});
    };
    services.restore_question = [](const std::string& file) {
        if (file == "信件.txt") throw std::runtime_error("信件.txt 不是帐套!");
        return "要用备份 " + file + " 替换当前帐套吗?";
    };
    services.restore = [this](const std::string& file) { restored.push_back(file); };
    window_ = std::make_unique<desktop::MainWindow>(services);
    interface_.set_window(window_.get());
    window_->resize(1440, 900);
    window_->show();
    QApplication::setActiveWindow(window_.get());
    watch();
    settle();
}

Desk::~Desk() {
    watcher_.reset();
    auto& forms = host::the_host().forms;
    while (!forms.empty()) delete forms.front(); // and with it what it opened
    window_.reset();
    host::the_host() = host::Host();
}

// Answers messages and questions; hands other modal windows to the test once.
void Desk::watch() {
    auto* timer = new QTimer;
    watcher_.reset(timer);
    QObject::connect(timer, &QTimer::timeout, timer, [this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal) return;
        if (modal->objectName() == "message") {
            messages.push_back(desktop::utf8(modal->findChild<QLabel*>("text")->text()));
            keep("message_" + std::to_string(messages.size()));
            const bool yes = !answers.empty() && answers.front();
            if (!answers.empty()) answers.erase(answers.begin());
            QTest::keyClick(modal, yes ? Qt::Key_Y : Qt::Key_Return);
        } else if (!modal_work_.empty()) {
            const auto work = modal_work_.front();
            modal_work_.erase(modal_work_.begin());
            // Not from inside the timer: what stands up meanwhile has to be answered too.
            QTimer::singleShot(0, modal, work);
        }
    });
    timer->start(look_every);
}

void Desk::when_modal(std::function<void()> work) { modal_work_.push_back(std::move(work)); }

void Desk::settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    QTest::qWait(5);
}

void Desk::keys(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        press(name);
        settle();
    }
}

void Desk::type(const std::string& text) {
    for (const QChar c : desktop::qt(text)) send(target(), Qt::Key_unknown, Qt::NoModifier, c);
    settle();
}

QImage Desk::picture() { return desktop::snapshot(*window_); }

void Desk::keep(const std::string& name) {
    const char* folder = std::getenv("ZF_PICTURES");
    if (!folder) return;
    QDir().mkpath(folder);
    picture().save(QString::fromLocal8Bit(folder) + "/" + desktop::qt(name) + ".png");
}

} // namespace tests

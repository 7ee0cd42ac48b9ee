// Fills the menus from the table of functions and wires the frame's own commands.
#include "desktop/frame/menus.h"

#include <QApplication>
#include <QFileDialog>
#include <QMenuBar>

#include "desktop/dialogs/about.h"
#include "desktop/frame/main_window.h"
#include "desktop/renderers/form_view.h"
#include "desktop/theme/text.h"
#include "host/contract/function_table.h"
#include "host/forms/form.h"

namespace desktop {
namespace {

QString titled(std::string_view name, char mnemonic) {
    return QStringLiteral("%1(&%2)").arg(qt(name)).arg(QChar(mnemonic));
}

void add(QMenu& menu, const QString& text, const QString& key, const std::function<void()>& act) {
    QAction* action = menu.addAction(text);
    if (!key.isEmpty()) action->setShortcut(QKeySequence(key));
    QObject::connect(action, &QAction::triggered, &menu, act);
}

void add_file_menu(QMenuBar& bar, MainWindow& window) {
    QMenu* menu = bar.addMenu(titled("文件", 'F'));
    const auto& services = window.services();
    if (services.open_books) {
        add(*menu, QStringLiteral("打开帐套…"), "Ctrl+O", [&window] {
            const QString file = QFileDialog::getOpenFileName(&window, QStringLiteral("打开帐套"));
            if (!file.isEmpty()) window.start_over(utf8(file));
        });
        for (const std::string& books : services.recent_books)
            add(*menu, qt(books), {}, [&window, books] { window.start_over(books); });
        if (!services.recent_books.empty())
            add(*menu, QStringLiteral("换用户登录"), {},
                [&window] { window.start_over(window.services().recent_books.front()); });
        menu->addSeparator();
    }
    if (services.restore) {
        add(*menu, QStringLiteral("从备份恢复…"), {}, [&window] {
            const QString file = QFileDialog::getOpenFileName(
                &window, QStringLiteral("从备份恢复"), {}, QStringLiteral("帐套 (*.zf);;所有文件 (*)"));
            if (!file.isEmpty()) window.restore_from(utf8(file));
        });
        menu->addSeparator();
    }
    add(*menu, QStringLiteral("关闭当前页"), "Ctrl+W", [&window] { window.close_in_front(); });
    add(*menu, QStringLiteral("退出"), "Ctrl+Q", [&window] { window.close(); });
}

// The form in front gets the keys of the edit menu as if they had been pressed.
void press(MainWindow& window, const std::string& key) {
    if (FormView* view = window.view_in_front())
        if (const auto stroke = host::Key::parse(key)) view->send_key(*stroke);
}

void add_edit_menu(QMenuBar& bar, MainWindow& window) {
    QMenu* menu = bar.addMenu(titled("编辑", 'E'));
    add(*menu, QStringLiteral("查找功能"), "Ctrl+G", [&window] { window.find_function(); });
    menu->addSeparator();
    // The forms own these keys: the menu shows them and sends them on.
    const std::pair<const char*, const char*> commands[] = {
        {"新增", "Insert"}, {"保存", "F2"},      {"筛选", "F3"},     {"刷新", "F5"},
        {"打印", "Ctrl+P"}, {"导出", "Ctrl+E"}, {"复制为文本", "Ctrl+C"}};
    for (const auto& [name, key] : commands)
        add(*menu, qt(name) + "\t" + key, {},
            [&window, key = std::string(key)] { press(window, key); });
}

// Functions of the host have no number.
QString shown_code(const host::Function& function) {
    return function.code == 0 ? QString() : "\t" + QString::number(function.code);
}

void add_window_menu(QMenuBar& bar, MainWindow& window) {
    QMenu* menu = bar.addMenu(titled("窗口", 'W'));
    add(*menu, QStringLiteral("概览"), "Ctrl+Home", [&window] { window.show_overview(); });
    add(*menu, QStringLiteral("下一页"), "Ctrl+Tab", [&window] { window.step_tab(1); });
    add(*menu, QStringLiteral("上一页"), "Ctrl+Shift+Tab", [&window] { window.step_tab(-1); });
}

} // namespace

QMenuBar* build_menus(MainWindow& window) {
    auto* bar = new QMenuBar(&window);
    bar->setNativeMenuBar(false);
    add_file_menu(*bar, window);
    add_edit_menu(*bar, window);
    for (const host::WorkArea& area : host::work_areas()) {
        QMenu* menu = bar->addMenu(titled(area.name, area.mnemonic));
        for (const host::Function& function : area.functions)
            add(*menu, qt(function.name) + shown_code(function), {},
                [&window, &function] { window.open(function); });
    }
    add_window_menu(*bar, window);
    QMenu* help = bar->addMenu(titled("帮助", 'H'));
    add(*help, QStringLiteral("快捷键"), "F1", [&window] { show_keys(&window); });
    add(*help, QStringLiteral("关于帐房"), {}, [&window] { show_about(&window); });
    return bar;
}

} // namespace desktop

// Two short texts in message dialogs.
#include "desktop/dialogs/about.h"

#include "desktop/dialogs/message_dialog.h"

namespace desktop {

void show_keys(QWidget* over) {
    show_message(QStringLiteral("快捷键"),
                 "Ctrl+G  查找功能：功能号、名称或拼音\n"
                 "F2  保存或确定        F3  查询条件        F5  刷新\n"
                 "Insert  新增或加行    Ctrl+Delete  删行\n"
                 "Enter  下一项；在列表中打开当前行\n"
                 "F4  打开选择窗口、日历      Alt+↓  打开下拉      Esc  离开\n"
                 "Ctrl+C  复制为文本    Ctrl+E  导出\n"
                 "Ctrl+Tab  下一页      Ctrl+W  关闭当前页",
                 over);
}

void show_about(QWidget* over) {
    show_message(QStringLiteral("关于帐房"),
                 "帐房：财务与会计。\n界面用 Qt 6（LGPL-3）、Lucide 图标（ISC）、思源字体（OFL）。", over);
}

} // namespace desktop

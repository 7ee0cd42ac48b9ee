// Grabs windows and sends them keys.
#include "desktop/frame/snapshot.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <memory>

#include "desktop/theme/text.h"

namespace desktop {
namespace {

constexpr int settle = 120; // milliseconds between keys

// "Ctrl+G" by name, anything else of one character as typed.
void press(const std::string& name) {
    QWidget* target = QApplication::focusWidget();
    if (!target) target = QApplication::activeWindow();
    if (!target) return;
    const QString text = qt(name);
    const QKeySequence keys = QKeySequence::fromString(text);
    int key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    if (!keys.isEmpty()) {
        key = keys[0].key();
        modifiers = keys[0].keyboardModifiers();
    }
    const QString typed = text.size() == 1  ? text
                          : name == "Space" ? QStringLiteral(" ")
                                            : QString();
    QKeyEvent shortcut(QEvent::ShortcutOverride, key, modifiers, typed);
    QApplication::sendEvent(target, &shortcut);
    QKeyEvent down(QEvent::KeyPress, key, modifiers, typed);
    QApplication::sendEvent(target, &down);
    if (target = QApplication::focusWidget(); !target) return;
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, typed);
    QApplication::sendEvent(target, &up);
}

void press_from(std::shared_ptr<std::vector<std::string>> keys, std::size_t at,
                const std::function<void()>& then) {
    QTimer::singleShot(settle, qApp, [keys, at, then] {
        if (at == keys->size()) return QTimer::singleShot(settle, qApp, then);
        press_from(keys, at + 1, then); // first: the key may open a modal loop
        press((*keys)[at]);
    });
}

// A dialog stands over the one it was opened from, a popup over all of them.
int height_of(const QWidget& shown) {
    int height = shown.windowType() == Qt::Popup || shown.windowType() == Qt::ToolTip ? 1000 : 0;
    for (const QWidget* below = shown.parentWidget(); below; below = below->parentWidget())
        ++height;
    return height;
}

QWidgetList shown_over(const QWidget& window) {
    QWidgetList shown;
    for (QWidget* one : QApplication::topLevelWidgets())
        if (one != &window && one->isVisible()) shown.push_back(one);
    std::stable_sort(shown.begin(), shown.end(), [](const QWidget* a, const QWidget* b) {
        return height_of(*a) < height_of(*b);
    });
    return shown;
}

} // namespace

QImage snapshot(QWidget& window) {
    QImage picture = window.grab().toImage();
    QPainter painter(&picture);
    for (QWidget* over : shown_over(window))
        painter.drawPixmap(over->geometry().topLeft() - window.geometry().topLeft(), over->grab());
    return picture;
}

void press_keys_then(const std::vector<std::string>& keys, const std::function<void()>& then) {
    QTimer::singleShot(settle, qApp, [keys, then] {
        press_from(std::make_shared<std::vector<std::string>>(keys), 0, then);
    });
}

} // namespace desktop

// The edit that stands in the current cell of an entry grid.
#pragma once

#include <QLineEdit>

#include <functional>

namespace desktop {

// Plain text, right-aligned for amounts; with a lookup button at its right edge where the column
// has one.
class CellEditor : public QLineEdit {
public:
    explicit CellEditor(QWidget* parent);
    void set_up(Qt::Alignment alignment, bool lookup, bool list);
    void set_latin(bool latin); // amounts need no input method

    std::function<void(const QString&)> on_edited; // the person changed the text
    std::function<void()> on_lookup;
    std::function<void()> on_composing; // an input method shows its own list
    std::function<void()> on_focus;

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRect button() const;
    bool lookup_ = false;
};

} // namespace desktop

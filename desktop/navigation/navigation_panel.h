// The functions at the left of the frame: a box that finds them, a tree of work areas.
#pragma once

#include <QWidget>

#include <functional>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace desktop {

class NavigationPanel : public QWidget {
public:
    // `available` says which functions are there; the others are shown pale.
    NavigationPanel(const std::function<bool(int code)>& available, QWidget* parent);
    void find_function();        // Ctrl+G: the cursor goes into the box
    void show_active(int code);  // the function whose form is in front; 0 for none
    std::function<void(int code)> on_open;
    std::function<void()> on_leave; // Esc: back to the form

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(const std::function<bool(int)>& available);
    // Shows what matches by code, name or pinyin initials; the first match becomes current.
    void filter(const QString& typed);
    void open(QTreeWidgetItem* item);
    void step(int by);
    QLineEdit* box_;
    QTreeWidget* tree_;
};

} // namespace desktop

// The functions at the left of the frame: a box that finds them, a tree of work areas.
#pragma once

#include <QWidget>

#include <functional>
#include <string>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace host {
struct Function;
}

namespace desktop {

class NavigationPanel : public QWidget {
public:
    // `available` says which functions are there; the others are shown pale.
    NavigationPanel(const std::function<bool(const std::string& key)>& available, QWidget* parent);
    void find_function();        // Ctrl+G: the cursor goes into the box
    void show_active(const std::string& key); // the function whose form is in front; "" for none
    std::function<void(const host::Function&)> on_open;
    std::function<void()> on_leave; // Esc: back to the form

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill(const std::function<bool(const std::string&)>& available);
    // Shows what matches by code, name or pinyin initials; the first match becomes current.
    void filter(const QString& typed);
    void open(QTreeWidgetItem* item);
    void step(int by);
    QLineEdit* box_;
    QTreeWidget* tree_;
};

} // namespace desktop

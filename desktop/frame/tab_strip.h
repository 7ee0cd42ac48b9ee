// The tabs of the open forms: a dot for what is unsaved, a cross to close.
#pragma once

#include <QTabBar>

#include <functional>

namespace desktop {

class TabStrip : public QTabBar {
public:
    explicit TabStrip(QWidget* parent);
    void set_unsaved(int index, bool unsaved);
    std::function<void(int index)> on_close; // the cross, or the middle button

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool closable(int index) const { return index > 0; } // the overview stays
    bool unsaved(int index) const { return tabData(index).toBool(); }
    QRect cross(int index) const;
};

} // namespace desktop

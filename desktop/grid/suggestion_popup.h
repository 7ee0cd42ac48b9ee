// The list below a cell while a code is typed: what matches, and how to take it.
#pragma once

#include <QFrame>

#include <functional>
#include <vector>

#include "host/controls/key.h"
#include "host/controls/suggestion.h"

namespace desktop {

// Never takes the focus: the edit keeps it and hands the keys over.
class SuggestionPopup : public QFrame {
public:
    SuggestionPopup();
    // Shows the list below `edit` (above where there is no room), or renews it.
    void offer(const std::vector<host::Suggestion>& rows, const QString& typed, QWidget& edit);
    bool takes(const host::Key& key) const;
    void key(const host::Key& key);
    std::function<void(int index)> on_chosen;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int shown() const;
    int width_of(std::size_t column) const;
    void paint_row(QPainter& painter, int index, const QRect& row) const;
    void paint_match(QPainter& painter, const QRect& box, const QString& text, bool current) const;
    void keep_in_sight();
    std::vector<host::Suggestion> rows_;
    std::vector<int> widths_;
    QString typed_;
    int current_ = -1, top_ = 0;
};

} // namespace desktop

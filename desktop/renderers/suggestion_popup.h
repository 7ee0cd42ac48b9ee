// The list below a cell or an edit while a code is typed: what matches, and how to take it.
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
    // Shows the list below `edit` (above where there is no room), or renews it. Where a code is
    // wanted (rows with a key) the row that says what was typed, else the first, is chosen at once.
    // A free text stays until the person moves into the list; so does a number that is not the
    // whole code of any row: it may stand for a branch of the chart, and no account is guessed.
    // titles: of the columns, over the first row; none for lists that say enough themselves.
    void offer(const std::vector<host::Suggestion>& rows, const std::vector<std::string>& titles,
               const QString& typed, QWidget& edit);
    int current() const { return current_; } // the chosen row; -1 while none is
    // Enter and Tab take the chosen row; taking it is the owner's.
    bool chosen_by(const host::Key& key) const;
    bool key(const host::Key& key); // moves or closes the list; false: not the list's key
    std::function<void(int index)> on_chosen; // by the mouse

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int shown() const;
    int rows_top() const; // below the titles
    bool is_amount(std::size_t column, const QString& text) const;
    void choose_first();
    void stand_beside(QWidget& edit, QSize size);
    int width_of(std::size_t column) const;
    void paint_titles(QPainter& painter) const;
    void paint_row(QPainter& painter, int index, const QRect& row) const;
    void paint_match(QPainter& painter, const QRect& box, const QString& text, bool current) const;
    void keep_in_sight();
    std::vector<host::Suggestion> rows_;
    std::vector<std::string> titles_;
    std::vector<int> widths_;
    QString typed_;
    int current_ = -1, top_ = 0;
    int lowest_ = -1; // -1: the person may leave the list for what was typed
};

} // namespace desktop

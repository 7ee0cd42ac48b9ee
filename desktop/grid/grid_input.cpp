// What a person does in a grid with mouse and keys.
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>

#include <utility>

#include "desktop/grid/cell_editor.h"
#include "desktop/grid/cell_text.h"
#include "desktop/grid/grid_header.h"
#include "desktop/grid/grid_model.h"
#include "desktop/grid/grid_view.h"
#include "desktop/grid/row_numbers.h"
#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/suggestion_popup.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/ports/host.h"

namespace desktop {

using host::KeyCode;

// ---- the editor in the current cell ----

QString GridView::plain_cell_text() const {
    const auto* column = grid_->current_column();
    const host::TField* field = grid_->DataSet->FindField(column->FieldName);
    if (!field || grid_->DataSet->IsEmpty()) return {};
    if (is_amount_column(*grid_, *column) && field->AsAmount().is_zero()) return {};
    return qt(grid_->DataSet->text_at(grid_->DataSet->RecNo(), field->index()));
}

void GridView::place_editor() {
    if (!grid_ || !grid_->DataSet) return;
    const int row = grid_->DataSet->RecNo(), column = grid_->column();
    const auto* shown = grid_->current_column();
    const bool wanted = shown && row >= 0 && is_entry_grid(*grid_) && grid_->can_edit(column) &&
                        !shown->CheckBox && (shows_focus() || grid_->editing());
    if (!wanted) {
        if (editor_->isVisible()) {
            const bool had_focus = editor_->hasFocus();
            editor_->hide();
            if (had_focus) setFocus();
        }
        popup_->hide();
        placed_row_ = placed_column_ = -1;
        return;
    }
    const QRect cell = visualRect(model_->index(row, column));
    editor_->setGeometry(cell.adjusted(-1, -1, 0, 0));
    const bool arrived = row != placed_row_ || column != placed_column_ || !editor_->isVisible();
    placed_row_ = row;
    placed_column_ = column;
    const bool latin = is_amount_column(*grid_, *shown) || shown->Button;
    if (arrived) {
        popup_->hide();
        editor_->set_up(alignment_of(*grid_, *shown), shown->Button && grid_->OnButtonClick,
                        latin && !shown->PickList.empty());
        editor_->set_latin(latin && is_amount_column(*grid_, *shown));
    }
    const QString text = grid_->editing() ? qt(grid_->edit_text()) : plain_cell_text();
    if (editor_->text() != text) editor_->setText(text);
    editor_->show();
    const bool entered = hasFocus(); // the focus came to the grid: it belongs to the editor
    if (entered) editor_->setFocus();
    if ((arrived || entered) && !grid_->editing()) editor_->selectAll();
}

void GridView::edited(const QString& text) {
    if (!grid_) return;
    form_.run([&] { grid_->set_edit_text(utf8(text)); });
    offer();
}

void GridView::offer() {
    if (!grid_) return;
    offered_.clear();
    const auto* column = grid_->current_column();
    if (column && !column->PickList.empty()) {
        for (const auto& item : column->PickList) offered_.push_back({item, {item}, item});
    } else if (!editor_->text().trimmed().isEmpty()) {
        form_.run([this] { offered_ = grid_->suggestions(); });
    }
    if (!grid_ || offered_.empty() || !editor_->isVisible()) {
        popup_->hide();
        return;
    }
    popup_->offer(offered_, {}, qt(grid_->edit_text()), *editor_);
}

bool GridView::take_suggestion(int index) {
    if (!grid_ || index < 0 || index >= static_cast<int>(offered_.size())) return false;
    const host::Suggestion chosen = offered_[static_cast<std::size_t>(index)];
    popup_->hide();
    return form_.run([&] { grid_->choose(chosen); }) && grid_;
}

// What Enter or Tab could not hand over stays in the cell, marked, with what is on offer for it:
// the person sees what was wrong and types over it.
void GridView::keep_refused_text() {
    const auto entered = std::exchange(entered_, std::nullopt);
    if (!entered || !grid_ || grid_->editing() || entered->text == entered->before) return;
    const bool stayed =
        entered->row == grid_->DataSet->RecNo() && entered->column == grid_->column();
    if (!stayed || plain_cell_text() != entered->before) return; // it was taken
    grid_->set_edit_text(utf8(entered->text));
    place_editor();
    editor_->selectAll();
    QTimer::singleShot(0, this, [this] {
        if (grid_ && grid_->editing()) offer();
    });
}

// The keys that stay with the editor or the list below it instead of going to the form.
OwnKey GridView::own_key(const host::Key& key) {
    if (!grid_) return OwnKey::No;
    if (popup_->isVisible()) {
        // What was chosen stands in the cell; then the key goes on from there as it always does.
        if (popup_->chosen_by(key))
            return take_suggestion(popup_->current()) ? OwnKey::No : OwnKey::Used;
        if (popup_->key(key)) return OwnKey::Used;
    }
    if (grid_->editing() && (key.code == KeyCode::Enter || key.code == KeyCode::Tab))
        entered_ = Entered{grid_->DataSet->RecNo(), grid_->column(), qt(grid_->edit_text()),
                           plain_cell_text()};
    const bool up_or_down = key.code == KeyCode::Up || key.code == KeyCode::Down;
    // Marking rows is the grid's own affair.
    if (!editor_->hasFocus())
        return own_when(grid_->MultiSelect && key.shift && !key.alt && up_or_down);
    const bool all = editor_->hasSelectedText() && editor_->selectedText() == editor_->text();
    const bool untouched = !grid_->editing() && (all || editor_->text().isEmpty());
    if (key.code == KeyCode::Left) return own_when(!untouched && editor_->cursorPosition() > 0);
    if (key.code == KeyCode::Right)
        return own_when(!untouched && editor_->cursorPosition() < editor_->text().size());
    return own_when(line_takes(key));
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const bool down = event->key() == Qt::Key_Down, up = event->key() == Qt::Key_Up;
    if (grid_ && (up || down) && event->modifiers() == Qt::ShiftModifier && grid_->MultiSelect) {
        mark_to(grid_->DataSet->RecNo() + (down ? 1 : -1));
        return;
    }
    event->ignore(); // the form has already seen it
}

// ---- marking ----

void GridView::mark_to(int row) {
    if (row < 0 || row >= model_->rowCount()) return;
    if (mark_anchor_ < 0) mark_anchor_ = grid_->DataSet->RecNo();
    form_.run([&] {
        if (!grid_->set_row(row)) return;
        grid_->clear_marks();
        for (int i = std::min(row, mark_anchor_); i <= std::max(row, mark_anchor_); ++i)
            grid_->mark_row(i, true);
    });
}

// ---- mouse ----

void GridView::mousePressEvent(QMouseEvent* event) {
    if (!grid_ || !grid_->DataSet) return;
    const QModelIndex at = indexAt(event->position().toPoint());
    if (!at.isValid() || event->button() == Qt::MiddleButton) return;
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    if (grid_->MultiSelect && (event->modifiers() & Qt::ShiftModifier)) return mark_to(at.row());
    const bool keeps_marks = event->button() == Qt::RightButton && grid_->marked(at.row());
    form_.run([&] {
        const int before = grid_->DataSet->RecNo();
        if (!grid_->set_row(at.row())) return;
        grid_->set_column(at.column());
        if (!grid_->MultiSelect || keeps_marks) return;
        if (!ctrl) return grid_->clear_marks();
        if (grid_->selected_rows() == std::vector<int>{at.row()} && before != at.row())
            grid_->mark_row(before, true);
        grid_->mark_row(at.row(), !grid_->marked(at.row()));
    });
    mark_anchor_ = at.row();
    if (!grid_ || event->button() != Qt::LeftButton) return;
    const auto* column = grid_->current_column();
    if (column && column->CheckBox && grid_->can_edit(grid_->column()))
        form_.run([this] { grid_->type(U' '); });
}

void GridView::mouseMoveEvent(QMouseEvent*) {}

void GridView::mouseReleaseEvent(QMouseEvent*) {}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!grid_ || !indexAt(event->position().toPoint()).isValid()) return;
    form_.run([this] { grid_->double_click(); });
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (!grid_ || !grid_->PopupMenu) return;
    event->accept();
    form_.run([this] { host::the_host().ui->popup(*grid_->PopupMenu, *grid_); });
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    place_editor();
    viewport()->update();
    verticalHeader()->viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    cursor_due();
    viewport()->update();
    verticalHeader()->viewport()->update();
}

// A text too long for its cell is shown in full under the mouse.
bool GridView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !grid_) return QTableView::viewportEvent(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex at = indexAt(help->pos());
    const QString text = at.isValid() ? at.data().toString() : QString();
    const int room = at.isValid() ? columnWidth(at.column()) - 2 * token::cell_padding : 0;
    if (QFontMetrics(font()).horizontalAdvance(text) > room && !looks_like_amount(text))
        QToolTip::showText(help->globalPos(), text, viewport());
    else
        QToolTip::hideText();
    return true;
}

} // namespace desktop

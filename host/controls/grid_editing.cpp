// Working in a grid: moving from cell to cell, typing, leaving a row.
#include <algorithm>

#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

bool TDBGridEh::can_edit(int column) const {
    if (ReadOnly || !usable() || DataSet == nullptr || !DataSet->Active()) return false;
    if (column < 0 || column >= static_cast<int>(Columns.size())) return false;
    const GridColumn& wanted = Columns[static_cast<std::size_t>(column)];
    const TField* field = DataSet->FindField(wanted.FieldName);
    return field != nullptr && wanted.Visible && !wanted.ReadOnly && !field->ReadOnly;
}

bool TDBGridEh::set_column(int index) {
    if (index < 0 || index >= static_cast<int>(Columns.size())) return false;
    if (index == column_) return true;
    if (!commit_edit()) return false;
    const int before = column_;
    try {
        if (OnColExit) OnColExit();
        column_ = index;
        find_text_.clear();
        changed();
        if (OnColEnter) OnColEnter();
        return true;
    } catch (const EAbort&) {
        // A form that refuses a column may have sent the person to another one instead.
        if (column_ == index) column_ = before;
        changed();
        return false;
    }
}

bool TDBGridEh::set_row(int row) {
    if (DataSet == nullptr || !DataSet->Active()) return false;
    if (row == DataSet->RecNo()) return true;
    if (!commit_edit()) return false;
    try {
        if (row >= DataSet->RecordCount()) {
            if (ReadOnly) return false;
            DataSet->Append();
            return true;
        }
        DataSet->GotoRow(row);
        return DataSet->RecNo() == row;
    } catch (const EAbort&) {
        return false;
    }
}

bool TDBGridEh::move_row(int by) {
    if (DataSet == nullptr || DataSet->IsEmpty()) return false;
    const int row = DataSet->RecNo() + by;
    return row >= 0 && row < DataSet->RecordCount() && set_row(row);
}

bool TDBGridEh::filter_key(char32_t& character) {
    if (OnKeyPress) OnKeyPress(character);
    return character != 0;
}

// Hands a finished text to the field; an empty grid gets its first row.
void TDBGridEh::post_typed(const std::string& text) {
    if (DataSet->IsEmpty()) DataSet->Append();
    TField& field = DataSet->FieldByName(current_column()->FieldName);
    if (field.DisplayLabel.empty()) field.DisplayLabel = replaced(current_column()->Title, "|", "");
    field.SetText(text);
}

void TDBGridEh::enter_cell(const std::string& text) {
    if (!can_edit(column_)) Abort();
    edit_text_.reset();
    std::string typed;
    bool swallowed = false;
    for (char32_t character : to_characters(text)) {
        if (filter_key(character))
            typed += to_utf8(character);
        else
            swallowed = true;
    }
    // Keys that did something else (swapping the sides, say) were no text.
    if (typed.empty() && swallowed) return;
    // Malformed bytes must reach the check of the text as they came.
    post_typed(first_unprintable(text) ? text : typed);
}

void TDBGridEh::start_edit() {
    if (!can_edit(column_) || editing()) return;
    const TField& field = DataSet->FieldByName(current_column()->FieldName);
    edit_text_ = field.AsText();
    changed();
}

void TDBGridEh::set_edit_text(const std::string& text) {
    if (!can_edit(column_)) return;
    edit_text_ = text;
    changed();
}

void TDBGridEh::commit_edit_or_abort() {
    if (!edit_text_) return;
    const std::string text = *edit_text_;
    edit_text_.reset();
    changed();
    post_typed(text);
}

bool TDBGridEh::commit_edit() {
    try {
        commit_edit_or_abort();
        return true;
    } catch (const EAbort&) {
        return false;
    }
}

void TDBGridEh::cancel_edit() {
    edit_text_.reset();
    changed();
}

std::vector<Suggestion> TDBGridEh::suggestions() {
    if (!editing() || !OnSuggest || current_column() == nullptr) return {};
    return OnSuggest(*current_column(), *edit_text_);
}

void TDBGridEh::choose(const Suggestion& suggestion) {
    if (!can_edit(column_)) return;
    edit_text_.reset();
    post_typed(suggestion.value);
}

void TDBGridEh::empty_cell() {
    edit_text_.reset();
    if (!DataSet->IsEmpty() && !cell_text(DataSet->RecNo(), column_).empty()) post_typed("");
}

void TDBGridEh::press_button() {
    const GridColumn* column = current_column();
    if (column == nullptr || !column->Button || !OnButtonClick) return;
    if (!can_edit(column_)) return;
    edit_text_.reset(); // the picker's choice replaces what was typed
    if (DataSet->IsEmpty()) DataSet->Append();
    OnButtonClick(Columns[static_cast<std::size_t>(column_)]);
}

void TDBGridEh::double_click() {
    if (OnDblClick && DataSet != nullptr && !DataSet->IsEmpty()) OnDblClick();
}

bool TDBGridEh::to_first_editable() {
    for (int i = 0; i < static_cast<int>(Columns.size()); ++i)
        if (can_edit(i)) return set_column(i);
    return true;
}

bool TDBGridEh::row_is_untouched() const {
    return DataSet->State() == DataSetState::Insert && !DataSet->RowModified();
}

// Below the last row, and only when that row is not an empty one waiting already.
bool TDBGridEh::may_append() const {
    return !ReadOnly && AppendOnEnter && DataSet->Active() && !row_is_untouched() &&
           DataSet->RecNo() + 1 == DataSet->RecordCount();
}

bool TDBGridEh::next_cell() {
    if (!commit_edit()) return false;
    for (int i = column_ + 1; i < static_cast<int>(Columns.size()); ++i)
        if (can_edit(i)) return set_column(i);
    if (DataSet == nullptr || !DataSet->Active()) return false;
    const bool last = DataSet->RecNo() + 1 >= DataSet->RecordCount();
    if (last && !may_append()) return false;
    return set_row(DataSet->RecNo() + 1) && to_first_editable();
}

void TDBGridEh::type(char32_t character) {
    if (!filter_key(character)) return;
    const GridColumn* column = current_column();
    if (column == nullptr || DataSet == nullptr || !DataSet->Active()) return;
    if (!can_edit(column_)) {
        const std::string longer = find_text_ + to_utf8(character);
        find_text_ = find(longer) || find_text_.empty() ? longer : to_utf8(character);
        if (find_text_ != longer) find(find_text_);
        return;
    }
    if (column->CheckBox) {
        if (character != ' ' || DataSet->IsEmpty()) return;
        TField& field = DataSet->FieldByName(column->FieldName);
        field.SetText(field.AsBoolean() ? "0" : "1");
        return;
    }
    edit_text_ = edit_text_.value_or("") + to_utf8(character);
    changed();
}

bool TDBGridEh::key_down(Key key) {
    if (key.ctrl && key.code == KeyCode::Character && key.character == 'C') {
        the_host().ui->set_clipboard(copy_text());
        return true;
    }
    if (key.ctrl || key.alt || DataSet == nullptr) return false;
    const auto step_column = [&](int by) {
        for (int i = column_ + by; i >= 0 && i < static_cast<int>(Columns.size()); i += by)
            if (Columns[static_cast<std::size_t>(i)].Visible) return set_column(i), true;
        return true;
    };
    switch (key.code) {
    case KeyCode::Up: return move_row(-1), true;
    case KeyCode::Down:
        if (!move_row(1) && may_append()) set_row(DataSet->RecordCount());
        return true;
    case KeyCode::PageUp: return set_row(std::max(0, DataSet->RecNo() - 20)), true;
    case KeyCode::PageDown:
        return set_row(std::min(DataSet->RecordCount() - 1, DataSet->RecNo() + 20)), true;
    case KeyCode::Left: return step_column(-1);
    case KeyCode::Right: return step_column(1);
    case KeyCode::F4: return press_button(), true;
    case KeyCode::Enter:
        if (ReadOnly && OnDblClick) return double_click(), true;
        if (!commit_edit()) return true; // refused: the cursor stays where it is
        return next_cell();
    case KeyCode::Backspace:
        if (!editing()) start_edit();
        if (editing()) {
            const std::size_t length = character_count(*edit_text_);
            set_edit_text(first_characters(*edit_text_, length == 0 ? 0 : length - 1));
        }
        return true;
    case KeyCode::Delete:
        if (!can_edit(column_) || current_column()->CheckBox) return false;
        return empty_cell(), true;
    case KeyCode::Esc:
        if (editing()) return cancel_edit(), true;
        if (!DataSet->editing()) return false;
        return DataSet->Cancel(), true;
    default: return false;
    }
}

} // namespace host

// What the lookup pickers share: a search box over the rows of a table, one of which fills a field.
#include "module/masterdata/lookup_picker.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

// ---- opening ----

LookupPicker::LookupPicker(TForm* parent, const PickerKind& kind)
    : TBase_Link(parent), kind_(kind) {
    Caption = kind.caption;
    PreferredWidth = 64;
    for (const PickerColumn& column : kind.columns) {
        if (column.field == nullptr) continue;
        AdoQry_Main.DefineField(column.field, FieldType::Text);
        DBGridEh.Columns.push_back(
            {.FieldName = column.field, .Title = column.title, .Width = column.width});
    }
    DBGridEh.EmptyText = kind.nothing_found;
    DBGridEh.OnDblClick = [this] { DBGridEhDblClick(); };
    wl_id.OnChange = [this] {
        if (Shown()) refreshdate();
    };
    layout = Rows({Field("查找", wl_id, 32), Text(kind.hint), Rest(DBGridEh),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void LookupPicker::init(TLinkEdit& edit, const std::string& condition) {
    edit_ = &edit;
    condition_ = condition;
    wl_id.Text = "";
}

void LookupPicker::FormShow() {
    TBase_Link::FormShow();
    refreshdate();
}

// ---- lines ----

void LookupPicker::refreshdate() {
    opensql(AdoQry_Main, FunctionCode, list_query() + search_condition());
}

void LookupPicker::DBGridEhDblClick() {
    press(btn_ok);
}

void LookupPicker::btn_okClick() {
    TBase_Link::btn_okClick();
    if (ModalResult != mrOk || edit_ == nullptr) return;
    edit_->Text = AdoQry_Main.FieldByName(kind_.code).AsText();
    if (kind_.name == nullptr) return;
    // After the code, whose change may clear it.
    edit_->DisplayName = AdoQry_Main.FieldByName(kind_.name).AsText();
}

// ---- statements ----

std::string LookupPicker::searched_text() const {
    return trimmed(wl_id.Text.get());
}

std::string LookupPicker::list_query() const {
    return base_query() + (condition_.empty() ? "" : " and " + condition_);
}

// Where the alternatives stand in no brackets of their own, a condition of the caller binds to the
// first of them: what is found by name or pinyin is listed whatever the condition says.
std::string LookupPicker::search_condition() const {
    const std::string text = escaped(searched_text());
    if (text.empty()) return "";
    std::string alternatives;
    for (const char* column : kind_.searched) {
        if (column == nullptr) continue;
        alternatives += (alternatives.empty() ? "(" : " or(") + std::string(column) + " like '%" +
                        text + "%')";
    }
    return " and " + (kind_.bracketed ? "(" + alternatives + ")" : alternatives) + " ";
}

} // namespace module

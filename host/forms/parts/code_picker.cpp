// A picker over codes and their names.
#include "host/forms/parts/code_picker.h"

#include "host/forms/parts/list_search.h"
#include "host/values/text.h"

namespace host {

CodePicker::CodePicker(TForm* parent) : TBase_Link(parent) {
    PreferredWidth = 56;
    DBGridEh.EmptyText = "没有相符的内容";
    wl_id.OnChange = [this] { narrow(); };
    layout = Rows({Field("检索", wl_id, 32), Text("提示：您可以录入代号，名称，拼音码  进行检索"),
                   Rest(DBGridEh), Buttons({&btn_ok, &btn_Cancel})});
}

void CodePicker::init(const TClientDataSet& rows, const std::string& code_title,
                      const std::string& caption, const std::string& current) {
    AdoQry_Main.CopyFrom(rows);
    Caption = caption;
    const std::string code = rows.Fields().at(0)->FieldName;
    DBGridEh.Columns = {{.FieldName = code, .Title = code_title, .Width = 16},
                        {.FieldName = rows.Fields().at(1)->FieldName, .Title = caption,
                         .Width = -1}};
    if (!current.empty()) AdoQry_Main.Locate(code, current);
}

void CodePicker::narrow() {
    const std::string typed = trimmed(wl_id.Text.get());
    AdoQry_Main.SetFilter([typed](const TClientDataSet& rows) {
        return typed.empty() || row_matches_typed(rows, typed);
    });
}

std::string CodePicker::cell(int field) const {
    return AdoQry_Main.IsEmpty() ? "" : AdoQry_Main.text_at(AdoQry_Main.RecNo(), field);
}

} // namespace host

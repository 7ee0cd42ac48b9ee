// The rights of one role as a sheet.
#include "app/administration/rights_sheet.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_function.h"
#include "host/contract/function_table.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace app {

using namespace host;

namespace {

constexpr Color no_such_action = 0xE8EFF2; // the tone of the sheet's own headings

std::string field_of(const RightsAction& action) { return upper_case(std::string(action.name)); }

const RightsAction* action_of(const std::string& field) {
    for (const RightsAction& action : rights_actions())
        if (same_text(field, action.name)) return &action;
    return nullptr;
}

const Function* current_function(const TClientDataSet& rows) {
    return function_of(rows.FieldByName("KEY").AsText());
}

bool marked(std::string_view text) { return text == "1" || same_text(text, "true"); }

} // namespace

RightsSheet::RightsSheet(TClientDataSet& rows, TDBGridEh& grid) : rows_(rows) {
    rows_.DefineField("KEY", FieldType::Text, 10);
    rows_.DefineField("AREA", FieldType::Text, 20);
    rows_.DefineField("NAME", FieldType::Text, 50);
    for (const RightsAction& action : rights_actions())
        rows_.DefineField(field_of(action), FieldType::Boolean).OnSetText =
            [this](TField& field, const std::string& text) { typed(field, text); };
    build_grid(grid);
}

void RightsSheet::build_grid(TDBGridEh& grid) {
    grid.Columns = {{.FieldName = "AREA", .Title = "工作", .Width = 9, .ReadOnly = true},
                    {.FieldName = "KEY", .Title = "功能号", .Width = 7, .ReadOnly = true},
                    {.FieldName = "NAME", .Title = "功能", .Width = -1, .ReadOnly = true}};
    for (const RightsAction& action : rights_actions())
        grid.Columns.push_back({.FieldName = field_of(action),
                                .Title = std::string(action.caption),
                                .Width = 5,
                                .CheckBox = true});
    grid.AppendOnEnter = false;
    grid.AutoFooter = false;
    grid.OnGetCellParams = [this](TField& field, CellParams& params) {
        const RightsAction* action = action_of(field.FieldName);
        const Function* function = current_function(rows_);
        if (action && function && !function->has(*action)) params.Background = no_such_action;
    };
}

// ---- marks ----

void RightsSheet::typed(TField& field, const std::string& text) {
    const RightsAction& action = *action_of(field.FieldName);
    const Function& function = *current_function(rows_);
    const bool on = marked(text);
    if (on && !function.has(action)) {
        DISPINFO("“" + std::string(function.name) + "”没有“" + std::string(action.caption) +
                     "”这项操作。",
                 5);
        Abort();
    }
    rows_.Edit();
    field.SetValue(on);
    if (on) rows_.FieldByName("OPEN").SetValue(true);
    if (!on && action.name == "open") mark(false);
    rows_.Post();
}

// Cells of actions that a function does not have stay empty: there is nothing to tick.
void RightsSheet::mark(bool on) {
    const Function* function = current_function(rows_);
    for (const RightsAction& action : rights_actions())
        if (function->has(action)) rows_.FieldByName(field_of(action)).SetValue(on);
}

void RightsSheet::mark_row(bool on) {
    if (rows_.IsEmpty()) return;
    rows_.Edit();
    mark(on);
    rows_.Post();
}

void RightsSheet::mark_all(bool on) {
    const int before = rows_.RecNo();
    for (int row = 0; row < rows_.RecordCount(); ++row) {
        rows_.GotoRow(row);
        mark_row(on);
    }
    rows_.GotoRow(before);
}

// ---- reading and saving ----

void RightsSheet::fill() {
    rows_.Close();
    rows_.Open();
    for (const WorkArea& area : work_areas())
        for (const Function& function : area.functions) {
            if (function.actions == 0 || for_administrators_only(function.key())) continue;
            rows_.Append();
            rows_.FieldByName("KEY").SetValue(function.key());
            rows_.FieldByName("AREA").SetValue(std::string(area.name));
            rows_.FieldByName("NAME").SetValue(std::string(function.name));
            mark(false);
            rows_.Post();
        }
}

void RightsSheet::read(const std::string& function, const std::string& role) {
    fill();
    TClientDataSet granted;
    opensql(granted, function,
            "SELECT FUNCTION_CODE,ACTION FROM SYS_ROLE_RIGHT WHERE ROLE_ID=" + quoted(role));
    for (granted.First(); !granted.Eof(); granted.Next()) {
        const RightsAction* action = action_of(granted.FieldByName("ACTION").AsText());
        if (action == nullptr ||
            !rows_.Locate("KEY", granted.FieldByName("FUNCTION_CODE").AsText()))
            continue;
        rows_.Edit();
        rows_.FieldByName(field_of(*action)).SetValue(true);
        rows_.Post();
    }
    rows_.First();
    rows_.MarkSaved();
}

std::string RightsSheet::save_batch(const std::string& role) const {
    std::string values;
    const int key = rows_.FieldByName("KEY").index();
    for (int row = 0; row < rows_.RecordCount(); ++row)
        for (const RightsAction& action : rights_actions()) {
            if (!marked(rows_.text_at(row, rows_.FieldByName(field_of(action)).index()))) continue;
            values += (values.empty() ? "(" : ",(") + quoted(role) + "," +
                      quoted(rows_.text_at(row, key)) + "," + quoted(action.name) + ")";
        }
    const std::string clear = "DELETE FROM SYS_ROLE_RIGHT WHERE ROLE_ID=" + quoted(role) + ";";
    if (values.empty()) return clear;
    return clear + "INSERT INTO SYS_ROLE_RIGHT (ROLE_ID,FUNCTION_CODE,ACTION) VALUES " + values +
           ";";
}

} // namespace app

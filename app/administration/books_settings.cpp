// Settings of the books.
#include "app/administration/books_settings.h"

#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace app {

using namespace host;

namespace {

const std::string posted = "EXISTS (SELECT 1 FROM D6601 WHERE D=1)";
const std::string no_way_back = "已经登过帐,不能从严格方式改回小企业方式!";

std::string set(const std::string& name, const std::string& value) {
    return "DELETE FROM SYS_SETTING WHERE NAME=" + quoted(name) +
           ";INSERT INTO SYS_SETTING (NAME,VALUE) VALUES (" + quoted(name) + "," + quoted(value) +
           ");";
}

} // namespace

// ---- opening ----

TFrm_Books::TFrm_Books(TForm* parent) : TFrm_Base_Dialog(parent) {
    FunctionCode = "books";
    Caption = "帐套设置";
    COMPANY.MaxLength = 100;
    SMALL.GroupIndex = STRICT.GroupIndex = 1;
    COMPANY.OnExit = [this] { COMPANYExit(); };
    SMALL.OnClick = STRICT.OnClick = [this] { STRICTClick(); };
    PreferredWidth = 56;
    layout = Rows({Field("公司名称", COMPANY, 40),
                   Group("管理方式", {Control(SMALL), Control(STRICT)}), Control(TWO_PERSONS),
                   Control(ADVANCE_LIMIT),
                   Text("公司名称在下次登录时显示；登过帐后不能从严格方式改回。"),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TFrm_Books::InitForm(const Trecord& record) {
    OpenFunction(record);
    read();
}

void TFrm_Books::read() {
    TClientDataSet settings;
    opensql(settings, FunctionCode,
            "SELECT NAME,VALUE FROM SYS_SETTING WHERE NAME IN ('company','mode','two_persons',"
            "'advance_limit')");
    for (settings.First(); !settings.Eof(); settings.Next()) {
        const std::string name = settings.FieldByName("NAME").AsText();
        const std::string value = settings.FieldByName("VALUE").AsText();
        if (name == "company") COMPANY.Text = value;
        if (name == "mode") was_strict_ = value == "strict";
        if (name == "two_persons") TWO_PERSONS.Checked = value == "1";
        if (name == "advance_limit") ADVANCE_LIMIT.Checked = value == "1";
    }
    SMALL.Checked = !was_strict_;
    STRICT.Checked = was_strict_;
    STRICTClick();
}

// ---- leaving a field ----

void TFrm_Books::COMPANYExit() {
    if (!leaving_by_cancel()) CheckBlank(COMPANY, "公司名称");
}

void TFrm_Books::STRICTClick() {
    if (STRICT.Checked) TWO_PERSONS.Checked = true;
    TWO_PERSONS.Enabled = !STRICT.Checked;
}

// ---- saving ----

void TFrm_Books::require_way_back() const {
    if (!was_strict_ || STRICT.Checked) return;
    TClientDataSet state;
    opensql(state, FunctionCode, "SELECT CASE WHEN " + posted + " THEN 1 ELSE 0 END AS N");
    if (state.FieldByName("N").AsInteger() == 0) return;
    DISPINFO(no_way_back, 5);
    Abort();
}

void TFrm_Books::btn_okClick() {
    RequireRight("change", "修改帐套设置");
    if (!CheckAll()) return;
    require_way_back();
    const std::string mode = STRICT.Checked ? "strict" : "small";
    // Somebody may be posting at this moment: the database has the last word.
    const std::string guard = was_strict_ && !STRICT.Checked
                                  ? "IF " + posted + " THROW 50002,N" + quoted(no_way_back) + ",1;"
                                  : "";
    const std::string batch = guard + set("company", trimmed(COMPANY.Text.get())) +
                              set("mode", mode) +
                              set("two_persons", TWO_PERSONS.Checked ? "1" : "0") +
                              set("advance_limit", ADVANCE_LIMIT.Checked ? "1" : "0");
    if (ExecSql(FunctionCode, mode, "Edit", batch) == "Y") ModalResult = mrOk;
}

} // namespace app

// Pick an income or expenditure category for a document's line, or add the one that is missing.
#include "module/masterdata/Ulink_6804.h"

#include "host/ports/host.h"
#include "host/values/code_match.h"
#include "module/masterdata/U6687_1.h"
#include "module/masterdata/category_kinds.h"
#include "module/refuse.h"

namespace module {

namespace {

constexpr PickerKind categories{
    .caption = "选择收支类别",
    .nothing_found = "没有符合条件的收支类别",
    .hint = "提示：您可以录入代码，名称，拼音码  进行检索",
    .query = "SELECT SZLB, SZLB_NAME,PYM,0 AS I FROM D6804 WHERE SZLB_CLASS=",
    .searched = {},
    .bracketed = true,
    .columns = {{"SZLB", "代码", 8}, {"SZLB_NAME", "名称", -1}},
    .code = "SZLB",
    .name = "SZLB_NAME"};

constexpr const char* other_receipts = "646";
constexpr const char* category_list = "687"; // function whose rights a new category needs
constexpr int rows_searched_in_memory = 50;  // below this many the list is not read again

} // namespace

// ---- opening ----

TFLINK_6804::TFLINK_6804(TForm* parent) : LookupPicker(parent, categories) {
    AdoQry_Main.DefineField("PYM", FieldType::Text);
    BTN_INS.KeyHint = "Insert";
    BTN_INS.OnClick = [this] { BTN_INSClick(); };
    layout = Rows({Field("查找", wl_id, 32), Text(categories.hint), Rest(DBGridEh),
                   Buttons({&BTN_INS, &btn_ok, &btn_Cancel})});
}

TFLINK_6804::~TFLINK_6804() = default;

void TFLINK_6804::FormShow() {
    BTN_INS.Enabled = the_host().may({category_list, "add"});
    LookupPicker::FormShow();
}

void TFLINK_6804::FormKeyDown(Key& key) {
    if (key.code == KeyCode::Insert && !key.ctrl && !key.alt && !key.shift) {
        key = {};
        return BTN_INS.Click();
    }
    LookupPicker::FormKeyDown(key);
}

// ---- lines ----

void TFLINK_6804::refreshdate() {
    const std::string text = searched_text();
    if (!rows_loaded_will_do(text)) read_categories();
    searched_ = text;
    if (text.empty()) return;
    AdoQry_Main.SetFilter([text](const TClientDataSet& rows) {
        return code_fits(rows.FieldByName("SZLB").AsText(), rows.FieldByName("SZLB_NAME").AsText(),
                         rows.FieldByName("PYM").AsText(), text);
    });
}

bool TFLINK_6804::rows_loaded_will_do(const std::string& text) const {
    return AdoQry_Main.Active() && loaded_ < rows_searched_in_memory &&
           text.size() > searched_.size() && starts_with_text(text, searched_);
}

void TFLINK_6804::read_categories() {
    AdoQry_Main.SetFilter(nullptr);
    opensql(AdoQry_Main, FunctionCode, list_query());
    loaded_ = AdoQry_Main.RecordCount();
}

// ---- saving ----

void TFLINK_6804::BTN_INSClick() {
    F6687_1 = std::make_unique<TF6687_1>(this);
    F6687_1->FunctionCode = category_list;
    F6687_1->KindOffered = kind_offered();
    define_category_fields(added_);
    if (F6687_1->Open("Add", "", &added_) != mrOk) return;
    // Read anew, so that the list holds it; a text that was searched for would hide it.
    if (searched_text().empty()) refreshdate();
    else wl_id.Text = "";
    const std::string code = added_.FieldByName("SZLB").AsText();
    if (!AdoQry_Main.Locate("SZLB", code)) {
        refuse("“" + added_.FieldByName("SZLB_NAME").AsText() + "”已保存为" +
               added_.FieldByName("SZLB_CLASSN").AsText() + "，不在这里可以选的类别之内!");
    }
    press(btn_ok);
}

// ---- statements ----

int TFLINK_6804::kind_offered() const {
    return FunctionCode == other_receipts ? income : expenditure;
}

std::string TFLINK_6804::base_query() const {
    return LookupPicker::base_query() + std::to_string(kind_offered());
}

} // namespace module

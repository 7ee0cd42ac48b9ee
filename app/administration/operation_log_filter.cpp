// Ask which rows of the operation log to list: days, user, function, operation, document.
#include "app/administration/operation_log_filter.h"

#include "app/administration/log_words.h"
#include "host/contract/function_table.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace app {

using namespace host;

namespace {

constexpr const char* everything = "全部";

const std::string& chosen(const TComboBox& box, const std::vector<std::string>& keys) {
    return keys[static_cast<std::size_t>(std::max(0, box.item_index()))];
}

// A text to be found as it stands: the signs of LIKE mean themselves.
std::string containing(const std::string& text) {
    std::string pattern;
    for (const char c : text) {
        if (c == '[' || c == '%' || c == '_')
            pattern += std::string("[") + c + "]";
        else
            pattern += c;
    }
    return quoted("%" + pattern + "%");
}

} // namespace

// ---- opening ----

TFrm_LogFilter::TFrm_LogFilter(TForm* parent) : TFrm_Sys_Filter(parent) {
    FunctionCode = "log";
    Caption = "操作日志 · 查询条件";
    DOC.MaxLength = 100;
    BindDateMenu(btn_dateset, BDATE, EDATE);
    layout = Rows({Columns({Field("日期", BDATE, 12), Field("至：", EDATE, 12),
                            Control(btn_dateset)}),
                   Columns({Field("用户", USER, 20), Field("操作", OPERATION, 12), Spring()}),
                   Columns({Field("功能", FUNCTION, 20), Field("单据包含", DOC, 16), Spring()}),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TFrm_LogFilter::InitForm() {
    TFrm_Sys_Filter::InitForm();
    read_users();
    std::vector<std::string> functions = {everything, function_caption("new"),
                                          function_caption("sql")};
    functions_ = {"", "new", "sql"};
    for (const WorkArea& area : work_areas())
        for (const Function& function : area.functions) {
            functions_.push_back(function.key());
            functions.push_back(function_caption(function.key()));
        }
    std::vector<std::string> operations = {everything};
    operations_ = {""};
    for (const LogOperation& operation : log_operations()) {
        operations_.emplace_back(operation.name);
        operations.emplace_back(operation.caption);
    }
    FUNCTION.Items = functions;
    OPERATION.Items = operations;
    for (TComboBox* box : {&USER, &FUNCTION, &OPERATION}) box->set_index(0);
}

void TFrm_LogFilter::read_users() {
    TClientDataSet users;
    opensql(users, FunctionCode, "SELECT USER_ID,USER_NAME FROM SYS_USER ORDER BY USER_ID");
    std::vector<std::string> names = {everything};
    users_ = {""};
    for (users.First(); !users.Eof(); users.Next()) {
        users_.push_back(users.FieldByName("USER_ID").AsText());
        names.push_back(users_.back() + " " + users.FieldByName("USER_NAME").AsText());
    }
    USER.Items = names;
}

// ---- checking ----

void TFrm_LogFilter::btn_okClick() {
    if (BDATE.date() && EDATE.date()) CheckDates(BDATE, EDATE);
    ResultText = condition();
    Description = described();
    TFrm_Sys_Filter::btn_okClick();
}

std::string TFrm_LogFilter::described() const {
    std::string text;
    const auto add = [&text](const std::string& label, const std::string& value) {
        if (!value.empty() && value != everything) text += " ●" + label + ":(" + value + ")    ";
    };
    if (BDATE.date() || EDATE.date())
        add("日期", BDATE.Text.get() + " 至 " + EDATE.Text.get());
    add("用户", USER.Text);
    add("功能", FUNCTION.Text);
    add("操作", OPERATION.Text);
    add("单据包含", DOC.Text);
    return text.empty() ? " ●全部记录    " : text;
}

// ---- statements ----

std::string TFrm_LogFilter::condition() const {
    std::string text = " WHERE (1=1)";
    if (BDATE.date()) text += " AND (SYS_LOG.LOG_TIME>=" + quoted(BDATE.value().to_text()) + ")";
    if (EDATE.date())
        text += " AND (SYS_LOG.LOG_TIME<" + quoted(EDATE.value().plus_days(1).to_text()) + ")";
    const auto equals = [&text](const char* column, const std::string& value) {
        if (value.empty()) return;
        text += std::string(" AND (SYS_LOG.") + column + "=" + quoted(value) + ")";
    };
    equals("USER_ID", chosen(USER, users_));
    equals("FUNCTION_CODE", chosen(FUNCTION, functions_));
    equals("OPERATION", chosen(OPERATION, operations_));
    if (const std::string part = trimmed(DOC.Text.get()); !part.empty())
        text += " AND (SYS_LOG.DOC_KEY LIKE " + containing(part) + ")";
    return text;
}

} // namespace app

// What every form of the suite shares.
#include "host/forms/Base_Common.h"

#include "host/forms/parts/date_ranges.h"
#include "host/forms/release_queue.h"
#include "host/ports/host.h"
#include "host/values/errors.h"

namespace host {

TFrm_Base_Common::TFrm_Base_Common(TForm* parent) : TForm(parent) {
    if (const auto* opener = dynamic_cast<TFrm_Base_Common*>(parent))
        FunctionCode = opener->FunctionCode;
}

void TFrm_Base_Common::SetUserParam(const std::string& p1, const std::string& p2,
                                    const std::string& p3, const std::string& p4,
                                    const std::string& p5, const std::string& p6) {
    user_params_ = {p1, p2, p3, p4, p5, p6};
}

void TFrm_Base_Common::SetFormParam(const std::string& p1, const std::string& p2,
                                    const std::string& p3, const std::string& p4,
                                    const std::string& p5, const std::string& p6) {
    form_params_ = {p1, p2, p3, p4, p5, p6};
}

void TFrm_Base_Common::SetBodyParam(const std::array<std::string, 17>& params) {
    body_params_ = params;
}

std::string TFrm_Base_Common::RightsFunction() const {
    if (!FunctionCode.empty()) return FunctionCode;
    return Parent() == nullptr ? "" : Parent()->RightsFunction();
}

std::string TFrm_Base_Common::Getsysinfo(const std::string& name) const {
    if (name == "function") return FunctionCode;
    if (name == "user") return G_UserId;
    if (name == "user name") return G_UserName;
    if (name == "company") return G_CoName;
    if (name == "today") return the_host().clock->today().to_text();
    if (name == "period") return read_period(2);
    if (name == "first period") return read_period(1);
    return "";
}

std::string TFrm_Base_Common::read_period(int id) const {
    TClientDataSet row;
    opensql(row, FunctionCode, "SELECT PARAM FROM D6600 WHERE ID=" + std::to_string(id));
    return row.IsEmpty() ? "" : row.Fields().front()->AsText();
}

void TFrm_Base_Common::OpenFunction(const Trecord& record) {
    record_ = record;
    // The host's own functions have a name and no code; their forms know it.
    if (record.code() != 0 || FunctionCode.empty()) FunctionCode = std::to_string(record.code());
    const auto& user = record.user;
    SetUserParam(user[0], user[1], user[2], user[3], user[4], user[5]);
    RequireRight("open", "打开“" + Caption.get() + "”");
}

void TFrm_Base_Common::RequireRight(const std::string& action, const std::string& what) const {
    if (Allowed(action)) return;
    DISPINFO("您没有" + what + "的权限，请与系统管理员联系。", 5);
    Abort();
}

bool TFrm_Base_Common::Allowed(const std::string& action) const {
    return the_host().may({RightsFunction(), action});
}

void TFrm_Base_Common::RequireSaveRight(const std::string& mode) const {
    const std::string what = "“" + Caption.get() + "”";
    if (mode == "Add" || mode == "CopyAdd") RequireRight("add", "新增" + what);
    if (mode == "Edit") RequireRight("change", "修改" + what);
}

bool TFrm_Base_Common::BooksAreStrict() const {
    TClientDataSet mode;
    opensql(mode, FunctionCode, "SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'");
    return !mode.IsEmpty() && mode.FieldByName("VALUE").AsText() == "strict";
}

void TFrm_Base_Common::LeaveAllFields() {
    for (TWinControl* control : TabOrder()) {
        if (control->ReadOnly || !control->usable()) continue;
        control->leave();
        if (control->OnExit) control->OnExit();
    }
}

void TFrm_Base_Common::CheckBlank(TWinControl& control, const std::string& label) {
    host::CheckBlank(control, label);
}

void TFrm_Base_Common::CheckDate(TDateEdit& control, const std::string& label) {
    if (control.date()) return;
    DISPINFO(label + "不是有效的日期，请录入日期，例如 2024-03-05!", 5);
    SetFocusTo(control);
    control.SelectAll();
    Abort();
}

void TFrm_Base_Common::CheckId(TEdit& control, const std::string& label) {
    CheckBlankInstr(control, label);
    host::CheckBlank(control, label);
    CheckText(control, label);
}

void TFrm_Base_Common::set_dates(const std::string& range_name) {
    auto* start = dynamic_cast<TDateEdit*>(FindComponent("BDATE"));
    auto* end = dynamic_cast<TDateEdit*>(FindComponent("EDATE"));
    const DateRange range = date_range(range_name, the_host().clock->today());
    if (start != nullptr) start->set(range.first);
    if (end != nullptr) end->set(range.last);
}

void TFrm_Base_Common::setdate02click() { set_dates("setdate02"); }
void TFrm_Base_Common::setdate04click() { set_dates("setdate04"); }
void TFrm_Base_Common::setdate06click() { set_dates("setdate06"); }

bool TFrm_Base_Common::leaving_by_cancel() const {
    return FocusTarget() != nullptr && FocusTarget()->Name() == "btn_Cancel";
}

} // namespace host

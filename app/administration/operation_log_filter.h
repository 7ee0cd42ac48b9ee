// Ask which rows of the operation log to list: days, user, function, operation, document.
#pragma once

#include "host/forms/Sys_Filter.h"

namespace app {

class TFrm_LogFilter : public host::TFrm_Sys_Filter {
public:
    // What the user sees, from top to bottom.
    host::TDateEdit BDATE{this, "BDATE", "日期"}; // first day; empty: from the beginning
    host::TDateEdit EDATE{this, "EDATE", "至："}; // last day; empty: to the end
    host::TButton btn_dateset{this, "btn_dateset", "时段选择"};
    host::TComboBox USER{this, "USER", "用户"};
    host::TComboBox FUNCTION{this, "FUNCTION", "功能"};
    host::TComboBox OPERATION{this, "OPERATION", "操作"};
    host::TEdit DOC{this, "DOC", "单据包含"};

    // What the user does.
    explicit TFrm_LogFilter(host::TForm* parent);
    const char* ClassName() const override { return "TFrm_LogFilter"; }
    void InitForm() override;
    void btn_okClick() override; // the condition, from WHERE on

private:
    void read_users();
    std::string condition() const;
    std::string described() const;
    std::vector<std::string> users_, functions_, operations_; // as the log keeps them, "" for all
};

} // namespace app

// Enter or change one role and what it may do in every function.
#pragma once

#include "app/administration/rights_sheet.h"
#include "host/forms/Base_Detail.h"

namespace app {

class TFrm_Role : public host::TFrm_Base_Detail {
public:
    host::TClientDataSet AdoQry_Main; // a row a function, a flag an action

    // What the user sees, from top to bottom.
    host::TEdit ROLE_ID{this, "ROLE_ID", "角色号"};
    host::TEdit ROLE_NAME{this, "ROLE_NAME", "角色"};
    host::TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    host::TButton btn_row{this, "btn_row", "本行全选"};
    host::TButton btn_row_none{this, "btn_row_none", "本行全清"};
    host::TButton btn_all{this, "btn_all", "全部全选"};
    host::TButton btn_none{this, "btn_none", "全部全清"};

    explicit TFrm_Role(host::TForm* parent);
    const char* ClassName() const override { return "TFrm_Role"; }
    void ROLE_IDExit(); // left: well formed and new
    void ROLE_NAMEExit();

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

protected:
    bool has_unsaved_work() const override;

private:
    bool adding() const { return Mode != "Edit"; }
    RightsSheet sheet_{AdoQry_Main, DBGridEh};
};

} // namespace app

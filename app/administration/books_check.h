// Audit the books and list what was found.
#pragma once

#include "host/forms/Base_Qry.h"

namespace app {

// Runs at opening and with every 重新核对.
class TFrm_Check : public host::TFrm_Base_Qry {
public:
    explicit TFrm_Check(host::TForm* frame);
    const char* ClassName() const override { return "TFrm_Check"; }
    void InitForm(const host::Trecord& record) override;
    void GetData() override;

protected:
    void Act_RefreshExecute() override;
    void DBGridEhGetCellParams(host::TField& field, host::CellParams& params) override;

private:
    void add_row(const std::string& kind, const std::string& check, const std::string& text);
};

} // namespace app

// List the users of the books with their roles.
#pragma once

#include <memory>

#include "app/administration/administration_list.h"

namespace app {

class TFrm_User;

class TFrm_Users : public AdministrationList {
public:
    explicit TFrm_Users(host::TForm* frame);
    ~TFrm_Users() override;
    const char* ClassName() const override { return "TFrm_Users"; }
    void InitForm(const host::Trecord& record) override;

protected:
    host::TFrm_Base_Detail* Dialog() override;
    void Act_DeleteExecute() override; // never the last administrator
    void DBGridEhGetCellParams(host::TField& field, host::CellParams& params) override;

private:
    std::unique_ptr<TFrm_User> dialog_;
};

} // namespace app

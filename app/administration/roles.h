// List the roles and how many users have each.
#pragma once

#include <memory>

#include "app/administration/administration_list.h"

namespace app {

class TFrm_Role;

class TFrm_Roles : public AdministrationList {
public:
    explicit TFrm_Roles(host::TForm* frame);
    ~TFrm_Roles() override;
    const char* ClassName() const override { return "TFrm_Roles"; }
    void InitForm(const host::Trecord& record) override;

protected:
    host::TFrm_Base_Detail* Dialog() override;

private:
    std::unique_ptr<TFrm_Role> dialog_;
};

} // namespace app

// Settings of the books: company, how corrections are made, who may audit, advances.
#pragma once

#include "host/forms/Base_Dialog.h"

namespace app {

class TFrm_Books : public host::TFrm_Base_Dialog {
public:
    // What the user sees, from top to bottom.
    host::TEdit COMPANY{this, "COMPANY", "公司名称"};
    host::TRadioButton SMALL{this, "SMALL", "小企业：可以反登帐、反结帐"};
    host::TRadioButton STRICT{this, "STRICT", "严格：登帐、结帐后只能用红字凭证更正"};
    host::TCheckBox TWO_PERSONS{this, "TWO_PERSONS", "审核与制单须两人"};

    host::TCheckBox ADVANCE_LIMIT{this, "ADVANCE_LIMIT", "预收、预付不可超额退还或冲抵"};

    explicit TFrm_Books(host::TForm* parent);
    const char* ClassName() const override { return "TFrm_Books"; }
    void InitForm(const host::Trecord& record);
    void COMPANYExit(); // left: must not be blank
    void STRICTClick(); // strict books always demand two persons
    void btn_okClick() override;

private:
    void read();
    void require_way_back() const; // from strict to small only while nothing was posted
    bool was_strict_ = false;
};

} // namespace app

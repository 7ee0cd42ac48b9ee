// Open the books on a day: all vouchers go, the opening figures become the first balances.
#pragma once

#include "host/forms/Base_Common.h"
#include "module/host_names.h"

namespace module {

class TF6699_2 : public TFrm_Base_Common {
public:
    // What the user sees, from top to bottom.
    TDateEdit BDATE{this, "BDATE", "帐套启用日期:"}; // the books begin
    TLabel DateHint{this, "DateHint"};               // the day is not the first of its month
    TRadioButton R1{this, "R1", "记"};               // voucher words of the books
    TRadioButton R2{this, "R2", "收,付,转"};
    TRadioButton R3{this, "R3", "现收,现付,银收,银付,转"};
    TButton btn_ok{this, "btn_ok", "确定 F2"};
    TButton btn_Cancel{this, "btn_Cancel", "关闭 ESC"};

    // What the user does.
    explicit TF6699_2(TForm* parent);
    const char* ClassName() const override { return "TF6699_2"; }
    void btn_okClick();

protected:
    void FormKeyDown(Key& key) override;
    void FormShow() override;

private:
    // This form's own rules.
    void refresh_date_hint();
    void show_voucher_words();
    std::string why_not_again(); // the books are open already; "" when they are not
};

} // namespace module

// Enter the opening figures of every account, test whether they balance, and open the books.
#pragma once

#include "host/forms/Base_Inner.h"
#include "module/host_names.h"
#include "module/period/opening_figures.h"

namespace module {

class TF6699 : public TFrm_Base_Inner {
public:
    // What the user sees, from top to bottom.
    TLabel LA1{this, "LA1", "1、录入初始数据后请保存"};
    TLabel LA2{this, "LA2", "2、点击这里..试算平衡表"};
    TLabel LA3{this, "LA3", "3、转入总分类帐簿"};
    TLabel LA4{this, "LA4", "-->(成功后本模块自动转成只读，将不能进行任何更改)"};
    TLabel ReadOnlyHint{this, "ReadOnlyHint"}; // in place of the steps
    TLabel YearOpening{this, "YearOpening"};   // do the figures of all accounts balance?
    TLabel Accumulated{this, "Accumulated"};
    TLabel Opening{this, "Opening"};

    // What the user does.
    explicit TF6699(TForm* parent);
    const char* ClassName() const override { return "TF6699"; }
    void LACLICK(const TLabel& step);
    void DBGridEhColEnter(); // only the figures that are typed can be entered

    // Steps of every grid edited in place that differ here.
    void InitForm(const Trecord& record) override;
    void GetData() override;
    void SaveData() override;
    void SetFloatText(TField& field, const std::string& typed) override;

protected:
    void Act_OtherExecute() override { LACLICK(LA2); } // the second step by key

private:
    // This form's own rules.
    void build_columns();
    void set_read_only(bool set_up);
    void refresh_totals();
    void test_balance_and_post();
};

extern TF6699* F6699;

} // namespace module

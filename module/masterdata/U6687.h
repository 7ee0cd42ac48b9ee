// List the income and expense categories, all or one kind at a time.
#pragma once

#include <memory>

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

class TF6687_1;

class TF6687 : public TFrm_Base_Outer {
public:
    // What the user sees beside the list: which kind it shows.
    TSpeedButton SP0{this, "SP0", "收入类别"};
    TSpeedButton SP1{this, "SP1", "支出类别"};
    TSpeedButton SP2{this, "SP2", "费用类别"};
    TSpeedButton SP3{this, "SP3", "全部"};

    // What the user does.
    explicit TF6687(TForm* parent);
    ~TF6687() override;
    const char* ClassName() const override { return "TF6687"; }
    void InitForm(const Trecord& record) override;
    void spclick(const TSpeedButton& sender); // the kind in its Tag, 3 all

protected:
    // Steps of every code list that differ here.
    TFrm_Base_Detail* Dialog() override;

private:
    std::unique_ptr<TF6687_1> F6687_1;
};

extern TF6687* F6687;

} // namespace module

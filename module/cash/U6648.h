// List the bank deposits and withdrawals; enter, change and delete them.
#pragma once

#include <memory>

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

class TF6648F;
class TF6648_1;

class TF6648 : public TFrm_Base_Outer {
public:
    // What the user sees above the list.
    TLabel ConditionLabel{this, "ConditionLabel"}; // what was asked for

    // What the user does.
    explicit TF6648(TForm* parent);
    ~TF6648() override;
    const char* ClassName() const override { return "TF6648"; }
    void InitForm(const Trecord& record) override; // the current period's documents at once
    void GetData() override;

    // On paper: with the conditions.
    Sheet MakeSheet() override;

protected:
    // Steps of every list that differ here.
    TFrm_Base_Detail* Dialog() override;
    void Act_LocateExecute() override;

private:
    void take_condition();
    std::unique_ptr<TF6648F> F6648F;
    std::unique_ptr<TF6648_1> F6648_1;
};

extern TF6648* F6648;

} // namespace module

// Show each account's balances and turnover of a period, and whether the books balance.
#pragma once

#include <array>

#include "host/forms/Base_Qry.h"
#include "module/host_names.h"

namespace module {

class TF6689F;

class TF6689 : public TFrm_Base_Qry {
public:
    // What the user sees, from top to bottom.
    TAction Act_Open{this, "Act_Open", "打开明细帐", "Enter", "book-open"};
    TSpeedButton Level1{this, "Level1", "1"}; // the same period down to this account level
    TSpeedButton Level2{this, "Level2", "2"};
    TSpeedButton Level3{this, "Level3", "3"};
    TSpeedButton Level4{this, "Level4", "4"};
    TSpeedButton Level5{this, "Level5", "5"};
    TPanel Balanced{this, "Balanced", "试算平衡"};
    TPanel Unbalanced{this, "Unbalanced", "试算不平衡"};

    // What the user does.
    explicit TF6689(TForm* parent);
    const char* ClassName() const override { return "TF6689"; }

    void LevelClick(std::int64_t level);

    // Steps of every query that differ here.
    void InitForm(const Trecord& record) override;
    void GetData() override;

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    void DBGridEhDblClick() override; // the account's detailed ledger of the period

private:
    // This form's own rules.
    void add_side_by_side(const std::string& title, const std::string& fields);
    void show_level();
    std::array<TSpeedButton*, 5> levels() { return {&Level1, &Level2, &Level3, &Level4, &Level5}; }
    void refcon(); // debits against credits of opening, turnover and closing
    TF6689F* F6689F = nullptr; // the dialog, owned by the base
};

extern TF6689* F6689;

} // namespace module

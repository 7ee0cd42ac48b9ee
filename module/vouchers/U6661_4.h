// Look through the voucher templates: apply one to the voucher being entered, or delete it.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "host/controls/grid.h"
#include "host/forms/Base_Detail.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

class TF6661_4 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "摘要/科目代码/科目名称:"}; // text searched for
    TNumberEdit MONEY{this, "MONEY", "金额", 2};           // total of the voucher; 0 as saved
    TClientDataSet AdoQry_Main;                            // lines of the templates that fit
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    TLabel SelectedTemplate{this, "SelectedTemplate"};
    TButton btn_del{this, "btn_del", "删除模板"};

    // What the user does.
    explicit TF6661_4(TForm* parent);
    const char* ClassName() const override { return "TF6661_4"; }
    void INIT(TClientDataSet& lines); // applying a template replaces these
    void Edit1Change();
    void btn_delClick(); // the selected template, without asking

    // Steps of every edit dialog that differ here.
    void SaveData() override; // OK: applies the selected template

protected:
    void FormShow() override;
    void FormKeyDown(host::Key& key) override;
    bool has_unsaved_work() const override { return false; } // nothing here is kept

private:
    // This form's own rules.
    struct Template {
        std::vector<VoucherLine> lines;
        std::vector<std::string> names; // of the lines' accounts
    };
    void build_columns();
    void shade_every_second_template();
    void show_selected();
    std::string selected_group() const; // "" when no template is listed
    Template selected() const;
    TClientDataSet* lines_ = nullptr;
    std::set<std::string> shaded_; // groups told apart by their ground
};

} // namespace module

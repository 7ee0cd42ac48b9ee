// List the vouchers: enter, copy, change, delete them; as function 662 audit them.
#pragma once

#include <memory>

#include "host/forms/Base_Entry_Head.h"
#include "module/host_names.h"
#include "module/vouchers/red_voucher.h"

namespace module {

class TF6661F;
class TF6661_1;

class TF6661 : public TFrm_Base_Entry_Head {
public:
    // What the user sees, from top to bottom.
    TAction Action1{this, "Action1", "存为模板", "", "copy-plus"};
    TAction Act_Red{this, "Act_Red", "红字凭证", "", "undo-2"};
    TAction Act_PrintVouchers{this, "Act_PrintVouchers", "打印凭证", "F6", "printer"};
    TLabel CountLabel{this, "CountLabel"};       // not audited, audited but not posted, all
    TLabel SelectedLabel{this, "SelectedLabel"}; // the voucher whose lines are shown

    // What the user does.
    explicit TF6661(TForm* parent);
    ~TF6661() override;
    const char* ClassName() const override { return "TF6661"; }
    void Action1Execute(); // the selected voucher's lines become a template
    void Act_PrintVouchersExecute(); // the marked vouchers, each on the customary form
    void Act_RedExecute(); // the selected posted voucher is reversed by a red one

    // Steps of every document list that differ here. A key as the record's first text opens that
    // voucher at once.
    void InitForm(const Trecord& record) override;
    void GetData() override;
    std::string DocumentName() override; // "2024-03 记-7"

protected:
    TFrm_Sys_Filter* Filter() override;
    Tfrm_Base_Entry_Body* EntryForm() override;
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;

private:
    // This form's own rules.
    void create_filter();
    void choose_current_period();
    void open_voucher(const Trecord& record, const std::string& key);
    void build_columns();
    void build_layout(bool audit);
    void count_posted();
    void show_counts();
    void show_selected();
    Period period_for_red_voucher();
    OriginalVoucher selected_voucher();
    std::int64_t posted_ = 0; // vouchers of the list that are posted
    std::unique_ptr<TF6661F> F6661F;
    std::unique_ptr<TF6661_1> F6661_1;
};

extern TF6661* F6661;

} // namespace module

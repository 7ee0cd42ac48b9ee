// List the receipts from customers on one money account: enter, copy, change, delete them.
#pragma once

#include "module/settlement/settlement_list.h"

namespace module {

class TF6631_2;
class TF6631_3;

class TF6631 : public SingleAccountList {
public:
    // What the user sees beside the other actions.
    TAction Act_Invoice{this, "Act_Invoice", "销售开单", "F7", "file-pen-line"};
    TAction Act_Import{this, "Act_Import", "派车单导入", "F8", "file-down"};

    // What the user does.
    explicit TF6631(TForm* parent);
    ~TF6631() override;
    void Act_InvoiceExecute(); // a sales document, and its receipt for money taken at once
    void Act_ImportExecute();  // receipts for what a dispatch note carried
    const char* ClassName() const override { return "TF6631"; }

protected:
    // Steps of the lists that differ here.
    std::unique_ptr<TFrm_Sys_Filter> make_filter() override;
    std::unique_ptr<Tfrm_Base_Entry_Body> make_entry_form() override;
    std::string why_changed_elsewhere() override; // over-receipts belong to the other form

private:
    std::unique_ptr<TF6631_2> F6631_2;
    std::unique_ptr<TF6631_3> F6631_3;
};

extern TF6631* F6631;

} // namespace module

// List the receipts from customers on one money account: enter, copy, change, delete them.
#include "module/settlement/U6631.h"

#include "module/invoicing/U6631_2.h"
#include "module/invoicing/U6631_3.h"
#include "module/settlement/U6631_1.h"
#include "module/settlement/U6631f.h"

namespace module {

TF6631* F6631 = nullptr;

TF6631::TF6631(TForm* parent) : SingleAccountList(parent, receipt_kind) {
    Act_Invoice.OnExecute = [this] { Act_InvoiceExecute(); };
    Act_Import.OnExecute = [this] { Act_ImportExecute(); };
    Act_Invoice.Right = Act_Import.Right = "add"; // both make receipts
    layout.children.front().actions.insert(layout.children.front().actions.begin() + 4,
                                           {nullptr, &Act_Invoice, &Act_Import});
}

TF6631::~TF6631() = default;

void TF6631::Act_InvoiceExecute() {
    if (!F6631_3) F6631_3 = std::make_unique<TF6631_3>(this);
    F6631_3->OnSaved = [this](const std::string&) { GetData(); };
    F6631_3->InitForm("", nullptr);
}

void TF6631::Act_ImportExecute() {
    if (!F6631_2) F6631_2 = std::make_unique<TF6631_2>(this);
    F6631_2->ShowModal();
    if (F6631_2->imported()) GetData();
}

std::unique_ptr<TFrm_Sys_Filter> TF6631::make_filter() {
    return std::make_unique<TF6631F>(this);
}

std::unique_ptr<Tfrm_Base_Entry_Body> TF6631::make_entry_form() {
    return std::make_unique<TF6631_1>(this);
}

// Their lines by income category would stay behind as they were while the money changes.
std::string TF6631::why_changed_elsewhere() {
    if (AdoQry_Main.FieldByName("MONEY_RS").AsAmount().is_zero()) return "";
    return "“" + DocumentName() +
           "”含有按收入类别登记的溢收，请在“销售收款 · 外币”（功能 630）中修改!";
}

} // namespace module

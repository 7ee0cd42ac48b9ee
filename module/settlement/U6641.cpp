// List the payments to suppliers on one money account: enter, copy, change, delete them.
#include "module/settlement/U6641.h"

#include "module/settlement/U6641_1.h"
#include "module/settlement/U6641f.h"

namespace module {

TF6641* F6641 = nullptr;

TF6641::TF6641(TForm* parent) : SingleAccountList(parent, payment_kind) {}

std::unique_ptr<TFrm_Sys_Filter> TF6641::make_filter() {
    return std::make_unique<TF6641F>(this);
}

std::unique_ptr<Tfrm_Base_Entry_Body> TF6641::make_entry_form() {
    return std::make_unique<TF6641_1>(this);
}

} // namespace module

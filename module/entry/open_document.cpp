// Opens the document behind a row of a report, to be looked at.
#include "module/entry/open_document.h"

#include "host/forms/Base_Entry_Body.h"
#include "host/ports/host.h"
#include "module/cash/U6648_1.h"
#include "module/entry/U6600.h"
#include "module/opening.h"
#include "module/other_documents/U6646_1.h"
#include "module/other_documents/U6647_1.h"
#include "module/refuse.h"
#include "module/settlement/U6631_1.h"
#include "module/settlement/U6641_1.h"

namespace module {
namespace {

// An entry form stays with the list that made it; opened by a report it has none and goes when it
// is closed.
template <class Form>
void shown(std::int32_t function, const std::string& key, TForm* opener) {
    auto* form = new Form(opener);
    form->FreeOnClose = true;
    form->Tag = function;
    form->FunctionCode = std::to_string(function);
    open_or_release(form, [&key](Form& opened) { opened.InitForm(key, nullptr, true); });
}

// A transfer between own accounts has no entry form: its dialog stands over the report.
void shown_in_dialog(std::int32_t, const std::string& key, TForm* opener) {
    show_bank_transfer(key, opener);
}

struct DocumentForm {
    std::int32_t function;
    void (*open)(std::int32_t function, const std::string& key, TForm* opener);
};

constexpr DocumentForm documents[] = {
    {631, shown<TF6631_1>}, // 销售收款
    {641, shown<TF6641_1>}, // 采购付款
    {646, shown<TF6646_1>}, // 其他应收款
    {647, shown<TF6647_1>}, // 其他应付款
    {648, shown_in_dialog},  // 银行存取款单
};

} // namespace

void open_document(std::int32_t function, const std::string& key, TForm* opener) {
    const std::string code = std::to_string(function);
    for (const DocumentForm& document : documents) {
        if (document.function != function) continue;
        if (!the_host().may({code, "open"}))
            refuse("您没有打开单据“" + key + "”的权限，请与系统管理员联系。");
        return document.open(function, key, opener);
    }
    say_not_open(function);
}

} // namespace module

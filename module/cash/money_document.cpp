// The document behind a movement of money: which function shows it, and opening it.
#include "module/cash/money_document.h"

#include "module/entry/open_document.h"

namespace module {

namespace {

struct KindOfMovement {
    std::int64_t kind;
    std::int32_t function;
};

// Advances taken in and paid (11, 21) are looked at in their lists.
constexpr KindOfMovement kinds[] = {
    {10, 631}, // 销售收款
    {12, 631}, // 预收退款
    {13, 204}, // 销售退回
    {20, 641}, // 采购付款
    {22, 641}, // 预付退款
    {24, 214}, // 采购退回
    {30, 648}, // 银行存取款单, the account that pays
    {31, 648}, // 银行存取款单, the account that receives
    {40, 646}, // 收款结算
    {50, 647}, // 费用结算
};

} // namespace

std::int32_t function_of_kind(std::int64_t kind) {
    for (const KindOfMovement& known : kinds)
        if (known.kind == kind) return known.function;
    return 0;
}

void open_money_document(std::int64_t kind, const std::string& number, TForm* opener) {
    const std::int32_t function = function_of_kind(kind);
    if (function != 0) open_document(function, number, opener);
}

} // namespace module

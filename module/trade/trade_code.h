// The code fields of trade documents: what they choose from, and the name beside the code.
#pragma once

#include "host/controls/edits.h"
#include "host/forms/Base_Common.h"
#include "module/host_names.h"

namespace module {

// One code table, as a field of a document sees it.
struct TradeCode {
    const char* table;      // "D1102"
    const char* code;       // "KH_GYS_ID"
    const char* name;       // "KG_NAME"
    const char* what;       // "客户": what messages and the picker's window call it
    const char* code_title; // "客户代号": of the picker's column
    const char* condition;  // rows that may be chosen; "" for all
    int length;             // characters of a code
};

extern const TradeCode customers, suppliers, staff, departments;
extern const TradeCode money_accounts; // without '0', the receivable or payable account itself
extern const TradeCode warehouses, delivery_routes;

// Shows the code that a row holds, and its name beside it.
void show_code(TLinkEdit& edit, const TClientDataSet& row, const char* code, const char* name);
// Shows cash, the money account that new documents begin with.
void show_cash(TLinkEdit& edit);

// F4 opens the picker, typing offers what fits; a changed code loses the name shown beside it.
void offer_trade_codes(TLinkEdit& edit, const TradeCode& kind);

// Leaving the field: a code that exists gets its name beside it, any other is refused with the
// focus back. A blank is let through, as is whatever stands there while 取消 is pressed.
void require_trade_code(TFrm_Base_Common& form, TLinkEdit& edit, const TradeCode& kind);

// Both, for fields whose exit does no more.
//
//     bind_trade_code(*this, YW_ID, staff);
void bind_trade_code(TFrm_Base_Common& form, TLinkEdit& edit, const TradeCode& kind);

} // namespace module

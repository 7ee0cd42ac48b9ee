// In what receipts from customers and payments to suppliers differ: tables, words, messages.
#pragma once

#include "module/trade/document_number.h"
#include "module/trade/trade_code.h"

namespace module {

// What a receipt or payment is for; the order of the items of its choice, stored in JY_KM.
enum class Purpose {
    settles,  // money that writes off open documents
    advance,  // money before there is a document
    refund,   // an advance paid back
    set_off,  // an advance used for open documents; no money moves
};

// One side of trade. Texts of statements stand as they are sent.
struct SettlementKind {
    const char* function;      // "631"
    const char* caption;       // "销售收款"
    NumberSeries numbers;      // table as the number check spells it
    const TradeCode& party;    // who pays or is paid
    const char* heads;         // "D631"
    const char* lines;         // "D631A"
    const char* balances;      // "VD631": what stands open with every party
    const char* documents;     // "D8102"
    const char* others;        // "D651": amounts owed outside sales or purchases
    const char* returns;       // "D8103"

    // What the kinds of open items are called.
    const char* document_name;
    const char* opening_name;
    const char* other_name;
    const char* return_name;
    const char* purposes[4];

    // Statements, as far as the two sides spell them differently.
    const char* select_heads;     // a condition follows
    const char* insert_head;      // up to the number
    const char* before_order;     // between the condition on returns and its order
    const char* line_order;       // of the lines of a saved document
    const char* delete_head;      // %S stands for the quoted number

    // What the user reads.
    const char* party_caption;    // "客    户"
    const char* account_caption;  // "收款帐户"
    const char* paid_caption;     // "实收金额"
    const char* total_title;      // "应收款"
    const char* settled_title;    // "累计收款"
    const char* share_title;      // "本次收款"
    const char* left_open;        // "分摊后未收"
    const char* number_title;     // of the item's own number, which the grid keeps hidden
    const char* party_code_title; // of the list
    const char* party_name_title;
    const char* purpose_title;
    const char* account_code_title;
    const char* balance_words[4]; // "客户往来款项信息 [预收:", " 应收:", …

    const char* unknown_party;
    const char* nothing_settled;  // the sum over the lines is not above 0
    const char* nothing_paid;
    const char* sums_differ;      // lines and head
    const char* discount_on_advance;
    const char* advance_too_small;
    const char* made_elsewhere;   // why a document numbered …SYS is not changed here
};

extern const SettlementKind receipt_kind; // 631
extern const SettlementKind payment_kind; // 641

} // namespace module

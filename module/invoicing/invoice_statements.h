// What the sales document asks of the books, and what it writes into them.
#pragma once

#include <string>
#include <vector>

#include "host/values/amount.h"
#include "module/host_names.h"

namespace module {

struct InvoiceHead {
    std::string number, customer, warehouse, date, route, salesman, user, note;
    std::string total;    // as the sum of the lines is shown
    std::string received; // taken at the counter, as it is shown; never blank
    std::string discount; // given at the counter, likewise
};

struct InvoiceLine {
    std::string order, order_line; // the order it fulfils; blank where there is none
    std::string good;
    std::string unit; // key of the packing unit; blank where the good has none
    Amount quantity, pieces, rest, conversion;
    Amount price, amount, cost_price, cost;
    std::string note;
};

// ---- reading

std::string select_customer(const std::string& customer); // telephone, address, route, salesman
std::string select_invoice_head(const std::string& number);
std::string select_invoice_lines(const std::string& number);
std::string select_invoices();    // those that may be changed, the newest first
std::string select_goods();       // a row a good and packing unit
std::string select_order_lines(); // of orders, not fulfilled yet

// ---- writing

std::string insert_invoice(const InvoiceHead& head, const std::string& approved);
// With the removal of its lines and of the receipt it made.
std::string update_invoice(const InvoiceHead& head);
// Numbers carry the decimals of the display formats. Line keys count from 1000.
std::string insert_invoice_lines(const InvoiceHead& head, const std::vector<InvoiceLine>& lines);
// The receipt for the money taken at once, numbered like the document with "SYS" behind.
std::string insert_counter_receipt(const InvoiceHead& head);
// What is settled and what is open, from all lines that write the document off.
std::string recompute_settlement(const std::string& number);
std::string mark_printed(const std::string& number);

} // namespace module

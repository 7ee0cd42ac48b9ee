// A voucher's cash-flow allocation: which cash-flow items its cash came from and went to.
#pragma once

#include <string>

#include "module/host_names.h"

namespace host {
class TClientDataSet;
}

namespace module {

// One row an item that amounts may be allocated to (headings are left out): ID, XJLL, and the
// voucher's J (inflow) and D (outflow), NULL where it has none.
std::string select_allocation(const std::string& voucher_key);

// Replaces the voucher's allocation by the rows that carry an amount above 0; reads ID, J and D of
// `items`. "" when no row does: the allocation stored before then stays as it is.
//
//     1101 J 100   →   delete from d6601b where noid='2024-03记005';
//                      INSERT INTO D6601B (NOID, D6820ID, J, D)
//                      VALUES ('2024-03记005','1101','100','0');
std::string replace_allocation(const std::string& voucher_key, const TClientDataSet& items);

// A voucher whose cash lines were taken out has nothing to allocate any more.
std::string delete_allocation(const std::string& voucher_key);

// Gives `red_key` the allocation of `voucher_key` in red: negative on its own side, as the lines
// are, so that the item's line of the cash flow statement is taken back. On the other side it would
// stand where no statement looks for it.
std::string take_back_allocation(const std::string& voucher_key, const std::string& red_key);

// A red allocation follows its voucher to another number as it is: replace_allocation writes no
// negative amounts.
std::string move_allocation(const std::string& voucher_key, const std::string& new_key);

} // namespace module

// The statements of a voucher's cash-flow allocation, word for word.
#include "module/vouchers/cash_allocation.h"

#include <gtest/gtest.h>
#include <utility>

#include "host/dataset/client_dataset.h"

namespace module {
namespace {

// Allocates; "" leaves an amount empty.
void allocate(TClientDataSet& items,
              std::initializer_list<std::tuple<const char*, const char*, const char*>> rows) {
    items.DefineField("ID", FieldType::Text, 20);
    items.DefineField("J", FieldType::Amount);
    items.DefineField("D", FieldType::Amount);
    items.Open();
    for (const auto& [item, inflow, outflow] : rows) {
        items.Append();
        items.FieldByName("ID").SetValue(std::string(item));
        if (*inflow) items.FieldByName("J").SetValue(*Amount::parse(inflow));
        if (*outflow) items.FieldByName("D").SetValue(*Amount::parse(outflow));
        items.Post();
    }
}

const std::string delete_old = "delete from d6601b where noid='2024-03记005';";
const std::string insert_row = "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('2024-03记005',";

TEST(CashAllocation, is_read_for_the_items_that_are_no_headings) {
    EXPECT_EQ(select_allocation("2024-03记005"),
              "SELECT D6820_1.ID, D6820_1.XJLL,A.J,A.D FROM D6820 INNER JOIN D6820 D6820_1 ON "
              "D6820.ID = D6820_1.OID LEFT JOIN (SELECT D6820ID, J, D FROM D6601B WHERE (NOID = "
              "'2024-03记005')) A ON D6820_1.ID=A.D6820ID WHERE (D6820.OID <> 'ZZZ') ");
}

TEST(CashAllocation, the_rows_with_an_amount_replace_what_was_stored) {
    TClientDataSet items;
    allocate(items, {{"1101", "100", ""}, {"1102", "", ""}, {"1201", "", "30.5"}});
    EXPECT_EQ(replace_allocation("2024-03记005", items),
              delete_old + insert_row + "'1101','100','0');" + insert_row + "'1201','0','30.5');");
}

TEST(CashAllocation, a_row_counts_when_either_amount_is_above_zero) {
    TClientDataSet items;
    allocate(items, {{"1101", "0", "-5"},
                     {"1102", "-5", "0"},
                     {"1109", "-5", ""},
                     {"1201", "0", "0"},
                     {"1202", "-5", "7"}});
    EXPECT_EQ(replace_allocation("2024-03记005", items),
              delete_old + insert_row + "'1202','-5','7');");
}

TEST(CashAllocation, without_any_amount_nothing_is_written) {
    TClientDataSet nothing, blank;
    allocate(nothing, {});
    EXPECT_EQ(replace_allocation("2024-03记005", nothing), "");
    allocate(blank, {{"1101", "", ""}, {"1102", "0", ""}});
    EXPECT_EQ(replace_allocation("2024-03记005", blank), "");
}

TEST(CashAllocation, a_red_voucher_takes_it_back_on_its_own_side) {
    EXPECT_EQ(take_back_allocation("2024-03记005", "2024-03记009"),
              "INSERT INTO D6601B (NOID, D6820ID, J, D) SELECT '2024-03记009',D6820ID,-J,-D FROM "
              "D6601B WHERE NOID='2024-03记005';");
}

TEST(CashAllocation, what_is_red_follows_its_voucher_as_it_is) {
    EXPECT_EQ(move_allocation("2024-03记009", "2024-03记010"),
              "UPDATE D6601B SET NOID='2024-03记010' WHERE NOID='2024-03记009';");
}

} // namespace
} // namespace module

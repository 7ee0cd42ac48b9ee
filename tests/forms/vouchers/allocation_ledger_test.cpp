// Cash-flow allocations on real books: written with the voucher, moved with it, gone with it.
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

class AllocationLedger : public LedgerDesk {
protected:
    // Types a receipt of 100 in cash and allocates it; the voucher is not saved yet.
    void type_receipt() {
        anna.line(0, {{"ZY", "收货款"}, {"KM_ID", "1001"}, {"J", "100"}});
        anna.line(1, {{"ZY", "收货款"}, {"KM_ID", "1131"}, {"D", "100"}});
    }
    int row_of(const std::string& item) {
        const Rows rows = anna.rows("GRID2");
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows[row].at("ID") == item) return static_cast<int>(row);
        }
        ADD_FAILURE() << item << " is not offered";
        return 0;
    }
    void allocate(const std::string& item, const std::string& side, const std::string& amount) {
        anna.click("Act_xj");
        anna.cell(row_of(item), side, amount, "GRID2");
        anna.click("btn_ok");
    }
    void change_the_voucher() {
        anna.close();
        anna.click("Act_Modify");
        anna.expect_active("TF6661_1");
    }
    Rows allocations() {
        return books.table("SELECT NOID,D6820ID,J,D FROM D6601B ORDER BY NOID,D6820ID");
    }
    static Row allocation(const char* key, const char* item, const char* inflow,
                          const char* outflow) {
        return {{"NOID", key}, {"D6820ID", item}, {"J", inflow}, {"D", outflow}};
    }
};

TEST_F(AllocationLedger, only_items_below_a_heading_of_the_second_level_are_offered) {
    new_voucher();
    type_receipt();
    anna.click("Act_xj");
    const Rows rows = anna.rows("GRID2");
    EXPECT_EQ(std::to_string(rows.size()),
              books.value("SELECT COUNT(*) FROM D6820 A INNER JOIN D6820 B ON A.OID=B.ID WHERE "
                          "B.OID<>'ZZZ'"));
    EXPECT_EQ(rows.front().at("ID"), "1101");
    for (const Row& row : rows) EXPECT_EQ(row.at("ID").size(), 4u) << "a heading is offered";
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(),
                               [](const Row& a, const Row& b) { return a.at("ID") < b.at("ID"); }));
}

TEST_F(AllocationLedger, is_written_with_the_new_voucher_and_read_back_with_it) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "70");
    allocate("1109", "J", "=");
    EXPECT_TRUE(allocations().empty());
    anna.click("Act_Save");
    EXPECT_EQ(allocations(), (Rows{allocation("2024-03记001", "1101", "70.00", "0.00"),
                                   allocation("2024-03记001", "1109", "30.00", "0.00")}));
    type_receipt(); // the next voucher has none of its own
    anna.click("Act_Save");
    EXPECT_EQ(allocations().size(), 2u);
    anna.close();
    anna.row(0);
    anna.click("Act_Modify");
    anna.click("Act_xj");
    EXPECT_EQ(anna.rows("GRID2")[static_cast<std::size_t>(row_of("1109"))].at("J"), "30.00");
    EXPECT_EQ(anna.rows("GRID2")[static_cast<std::size_t>(row_of("1109"))].at("D"), "0.00");
    EXPECT_EQ(anna.rows("GRID2")[static_cast<std::size_t>(row_of("1201"))].at("D"), "");
}

TEST_F(AllocationLedger, a_change_replaces_the_rows_of_the_voucher) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    change_the_voucher();
    allocate("1101", "J", "");
    allocate("2101", "J", "100");
    anna.click("Act_Save");
    EXPECT_EQ(allocations(), (Rows{allocation("2024-03记001", "2101", "100.00", "0.00")}));
}

TEST_F(AllocationLedger, all_amounts_cleared_leave_the_old_allocation_as_it_is) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    change_the_voucher();
    allocate("1101", "J", "");
    anna.click("Act_Save");
    anna.expect_active("TF6661");
    EXPECT_EQ(allocations(), (Rows{allocation("2024-03记001", "1101", "100.00", "0.00")}));
}

TEST_F(AllocationLedger, a_change_elsewhere_in_the_voucher_keeps_it) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    change_the_voucher();
    anna.cell(0, "ZY", "收贷款");
    anna.click("Act_Save");
    EXPECT_EQ(allocations(), (Rows{allocation("2024-03记001", "1101", "100.00", "0.00")}));
}

TEST_F(AllocationLedger, a_voucher_without_cash_has_none_whatever_was_typed_before) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.cell(0, "KM_ID", "1133");
    anna.click("Act_Save");
    EXPECT_TRUE(allocations().empty()) << "the cash line became a receivable before the save";
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    anna.close();
    anna.row(1);
    anna.click("Act_Modify");
    anna.cell(0, "KM_ID", "1133");
    anna.click("Act_Save");
    EXPECT_TRUE(allocations().empty()) << "the cash line was taken out by a change";
}

TEST_F(AllocationLedger, follows_the_voucher_to_another_number) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    change_the_voucher();
    anna.set("PZZ_H", "5");
    anna.click("Act_Save");
    EXPECT_EQ(allocations(), (Rows{allocation("2024-03记005", "1101", "100.00", "0.00")}));
}

TEST_F(AllocationLedger, goes_with_the_voucher_and_a_number_used_again_inherits_none) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    anna.close();
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.forget_messages();
    EXPECT_TRUE(allocations().empty());
    anna.click("Act_Add");
    EXPECT_EQ(anna.value("PZZ_H"), "1");
    type_receipt();
    anna.click("Act_Save");
    EXPECT_TRUE(allocations().empty());
}

TEST_F(AllocationLedger, a_copy_begins_without_one) {
    new_voucher();
    type_receipt();
    allocate("1101", "J", "100");
    anna.click("Act_Save");
    anna.close();
    anna.click("Act_CopyAdd");
    anna.click("Act_xj");
    EXPECT_EQ(anna.rows("GRID2")[static_cast<std::size_t>(row_of("1101"))].at("J"), "");
    anna.click("btn_Cancel");
    anna.set("PZZ_Z", "1");
    anna.click("Act_Save");
    EXPECT_EQ(allocations().size(), 1u);
}

} // namespace
} // namespace tests

// The carry-forward voucher, word for word.
#include "module/period/carry_forward.h"

#include <gtest/gtest.h>

namespace module {
namespace {

const CarryForwardVoucher voucher{"2024-03", "12", "2024-03-31", "anna", "结转本期损益"};

Amount amount(const char* text) { return *Amount::parse(text); }

const std::string head = "INSERT INTO D6601 (T_SY,NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) "
                         "VALUES (1,'2024-03记12','2024-03','记','12','0','2024-03-31','anna');";

std::string line(const std::string& rest, const std::string& summary = "结转本期损益") {
    return "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记12','" + summary +
           "','" + rest + ");";
}

std::string batch_of(const std::vector<CarriedAccount>& accounts,
                     const CarryForwardVoucher& head_of = voucher) {
    CarriedTotals totals;
    for (const CarriedAccount& account : accounts) totals.add(account);
    return carry_forward_batch(head_of, accounts, totals);
}

TEST(CarryForward, clears_each_account_on_the_other_side_and_leaves_an_index_out) {
    EXPECT_EQ(batch_of({{"5101", "3131", false, amount("1234.5")},
                        {"5201", "3131", true, amount("0")},
                        {"5401", "3131", true, amount("600")},
                        {"550201", "3131", true, amount("-0.05")}}),
              head + line("5101','           1234.50','0.00',0") +
                  line("5401','0.00','            600.00',1") +
                  line("550201','0.00','             -0.05',2") +
                  line("3131','            599.95','0.00',4") +
                  line("3131','0.00','           1234.50',5"));
}

TEST(CarryForward, amounts_stand_at_the_right_of_eighteen_characters) {
    const std::string batch = batch_of({{"5101", "3131", false, amount("1234.5")}});
    EXPECT_NE(batch.find("'" + std::string(11, ' ') + "1234.50'"), std::string::npos);
}

TEST(CarryForward, expenses_alone_bring_one_line_on_the_target) {
    EXPECT_EQ(batch_of({{"5401", "3131", true, amount("600")}}),
              head + line("5401','0.00','            600.00',0") +
                  line("3131','            600.00','0.00',2"));
}

TEST(CarryForward, income_alone_brings_one_line_on_the_target) {
    EXPECT_EQ(batch_of({{"5101", "3131", false, amount("600")}}),
              head + line("5101','            600.00','0.00',0") +
                  line("3131','0.00','            600.00',3"));
}

TEST(CarryForward, a_loss_and_a_profit_may_cancel_in_the_sum_of_both_totals) {
    CarriedTotals totals;
    totals.add({"5401", "3131", true, amount("100")});
    totals.add({"5101", "3131", false, amount("-100")});
    EXPECT_TRUE(totals.sum().is_zero());
    EXPECT_EQ(totals.debit, amount("100"));
}

TEST(CarryForward, what_was_typed_cannot_end_its_text) {
    CarryForwardVoucher typed = voucher;
    typed.summary = "结转'损益";
    EXPECT_NE(batch_of({{"5101", "3131", false, amount("1")}}, typed)
                  .find(line("5101','              1.00','0.00',0", "结转''损益")),
              std::string::npos);
}

} // namespace
} // namespace module

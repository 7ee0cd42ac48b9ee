// What the database keeps true about vouchers by itself.
#include "host/values/errors.h"
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class VoucherRules : public Ledger {
protected:
    VoucherRules() {
        key_ = voucher(1, {{"1001", "100.00", "0.00"}, {"3101", "0.00", "100.00"}});
        run("INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('" + key_ + "','3101','100','0');");
    }
    void run(const std::string& batch) { data_->execute(batch, {"661", key_, "Edit"}); }
    std::string remove() const { return "delete from D6601 WHERE NOID='" + key_ + "';"; }
    std::string head() const {
        return "INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES ('" +
               key_ + "','2024-03','记','1','1','2024-03-15','admin');";
    }
    std::string line() const {
        return "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX) VALUES ('" + key_ +
               "','新','1001','            1.00','            0.00',0);";
    }
    std::string lines() { return value("SELECT COUNT(*) FROM D6601A"); }
    std::string allocations() { return value("SELECT COUNT(*) FROM D6601B"); }

    std::string key_;
};

} // namespace

TEST_F(VoucherRules, deleting_a_head_deletes_its_lines_and_leaves_no_allocation) {
    run(remove());
    EXPECT_EQ(lines(), "0");
    EXPECT_EQ(allocations(), "0");
}

TEST_F(VoucherRules, an_edit_that_keeps_the_key_replaces_the_lines_and_keeps_the_allocation) {
    run(remove() + head() + line());
    EXPECT_EQ(lines(), "1");
    EXPECT_EQ(value("SELECT ZY FROM D6601A"), "新");
    EXPECT_EQ(allocations(), "1");
}

TEST_F(VoucherRules, an_edit_that_sends_an_allocation_has_the_new_one) {
    run(remove() + head() + line() + "delete from d6601b where noid='" + key_ + "';" +
        "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('" + key_ + "','3102','5','0');");
    EXPECT_EQ(value("SELECT D6820ID FROM D6601B"), "3102");
    EXPECT_EQ(allocations(), "1");
}

TEST_F(VoucherRules, a_number_used_again_inherits_no_allocation) {
    run(remove());
    run(head() + line());
    EXPECT_EQ(allocations(), "0");
}

TEST_F(VoucherRules, a_failed_edit_leaves_everything_as_it_was) {
    EXPECT_THROW(run(remove() + head() + line() + line()), host::DataError);
    EXPECT_EQ(lines(), "2");
    EXPECT_EQ(allocations(), "1");
    EXPECT_EQ(value("SELECT COUNT(*) FROM SYS_6601_GONE"), "0");
}

TEST_F(VoucherRules, a_number_is_taken_once_though_the_key_is_written_unpadded) {
    EXPECT_THROW(run("INSERT INTO D6601 (NOID, PZQJ, PZZ, PZZ_H, PZZ_Z, BDATE, USER_ID) VALUES "
                     "('2024-03记1','2024-03','记','1','0','2024-03-31','admin')"),
                 host::DataError);
}

TEST_F(VoucherRules, numbers_are_numbers_so_ten_follows_nine) {
    voucher(9, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    voucher(10, {{"1001", "1.00", "0.00"}, {"3101", "0.00", "1.00"}});
    EXPECT_EQ(value("SELECT * FROM ( SELECT 1 AS I  UNION ALL SELECT MAX(PZZ_H)+1 AS I  FROM D6601 "
                    "WHERE (PZQJ = '2024-03') AND (PZZ = '记')) A ORDER BY I DESC "),
              "11");
}

TEST_F(VoucherRules, what_the_insert_of_a_head_leaves_out_is_not_audited_and_not_posted) {
    run(remove() + head() + line());
    EXPECT_EQ(value("SELECT COUNT(*) FROM D6601 WHERE T = 0 AND D = 0 AND T_SY = 0 AND "
                    "SDATE IS NULL AND SK IS NULL"),
              "1");
}

} // namespace tests

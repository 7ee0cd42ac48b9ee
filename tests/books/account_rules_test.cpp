// The full names of accounts follow every change of the chart.
#include "tests/books/ledger_fixture.h"

namespace tests {
namespace {

class AccountRules : public Ledger {
protected:
    void add(const std::string& code, const std::string& name, const std::string& parent,
             int level) {
        data_->execute("insert into D6801 (KM_ID, KM_NAME, FX, OID, PYM, KM_FL, KM_J, KM_K) "
                       "ValueS('" + code + "','" + name + "','借','" + parent + "','X','1','" +
                           std::to_string(level) + "','1')",
                       {"681", code, "CopyAdd"});
    }
    std::string full_name(const std::string& code) {
        return value("SELECT KM_NAME_NEW FROM V6801 WHERE KM_ID = '" + code + "'");
    }
};

} // namespace

TEST_F(AccountRules, a_new_account_has_its_full_name_at_once) {
    add("100201", "工商银行", "1002", 2);
    add("10020101", "基本户", "100201", 3);
    EXPECT_EQ(full_name("10020101"), "银行存款-工商银行-基本户");
    EXPECT_EQ(value("SELECT ISEND FROM V6801 WHERE KM_ID = '1002'"), "0");
    EXPECT_EQ(value("SELECT KM_K FROM D6801 WHERE KM_ID = '10020101'"), "1");
}

TEST_F(AccountRules, renaming_an_account_renames_everything_below_it_and_nothing_else) {
    add("100201", "工商银行", "1002", 2);
    add("10020101", "基本户", "100201", 3);
    add("1002010101", "a", "10020101", 4);
    add("100202", "建设银行", "1002", 2);
    data_->execute("UPDATE D6801 SET  km_NAME = 'ICBC',km_J= '2' where km_id='100201'",
                   {"681", "100201", "Edit"});
    EXPECT_EQ(full_name("100201"), "银行存款-ICBC");
    EXPECT_EQ(full_name("10020101"), "银行存款-ICBC-基本户");
    EXPECT_EQ(full_name("1002010101"), "银行存款-ICBC-基本户-a");
    EXPECT_EQ(full_name("100202"), "银行存款-建设银行");
    EXPECT_EQ(findings(), "");
}

TEST_F(AccountRules, a_change_of_letter_case_counts_as_a_change) {
    add("100201", "icbc", "1002", 2);
    data_->execute("UPDATE D6801 SET km_NAME = 'ICBC' where km_id='100201'",
                   {"681", "100201", "Edit"});
    EXPECT_EQ(full_name("100201"), "银行存款-ICBC");
}

} // namespace tests

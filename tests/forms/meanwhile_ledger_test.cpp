// What somebody else changes between a form's check and its write: the write is refused.
#include "host/ports/data_port.h"
#include "tests/forms/ledger_desk.h"

namespace tests {
namespace {

const std::string refusal = "别的用户刚刚更改了有关的数据,没有保存!请刷新后再试一次。";

// Does something on another connection after all checks, just before a batch is handed over.
class Interloper final : public host::DataPort {
public:
    explicit Interloper(host::DataPort& books) : books_(books) {}
    std::function<void()> act; // once

    void query(std::string_view sql, host::RowReceiver& receiver) override {
        books_.query(sql, receiver);
    }
    void execute(std::string_view batch, const host::LogEntry& entry,
                 const host::WhyNot& why_not) override {
        if (act) std::exchange(act, {})();
        books_.execute(batch, entry, why_not);
    }
    void hold_readings() override { books_.hold_readings(); }
    void release_readings() override { books_.release_readings(); }

private:
    host::DataPort& books_;
};

class Meanwhile : public LedgerDesk {
protected:
    Meanwhile() {
        anna.inside([this] { host::the_host().data = &interloper_; });
    }
    ~Meanwhile() override {
        anna.inside([this] { host::the_host().data = &books.data(); });
    }
    // Just before the next batch another session runs this.
    void meanwhile(const std::string& batch) {
        interloper_.act = [this, batch] { books.execute(batch); };
    }
    void one_voucher() {
        new_voucher();
        save_voucher("1001", "1002", "100");
        anna.close();
        anna.close();
    }
    std::string vouchers() { return books.value("SELECT COUNT(*) FROM D6601"); }

    Interloper interloper_{books.data()};
};

const std::string audit = "UPDATE D6601 SET T=1,SK='li',SDATE='2024-03-15' WHERE PZZ_H=1;";
const std::string another_voucher =
    "INSERT INTO D6601 (NOID,PZQJ,PZZ,PZZ_H,PZZ_Z,BDATE,USER_ID) VALUES "
    "('2024-03记007','2024-03','记','7','0','2024-03-09','admin');"
    "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) VALUES ('2024-03记007','收','1001','5','0',0);"
    "INSERT INTO D6601A (NOID,ZY,KM_ID,J,D,INX) VALUES ('2024-03记007','收','1131','0','5',1);";

} // namespace

TEST_F(Meanwhile, a_voucher_audited_after_the_question_is_not_deleted) {
    one_voucher();
    anna.open(661);
    meanwhile(audit);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.next_message(); // the question
    anna.expect_message(refusal);
    EXPECT_EQ(vouchers(), "1");
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601A"), "2");
}

TEST_F(Meanwhile, a_voucher_posted_while_it_was_being_saved_keeps_what_was_posted) {
    one_voucher();
    anna.open(661);
    anna.click("Act_Modify");
    anna.cell(0, "J", "250");
    anna.cell(1, "D", "250");
    meanwhile(audit + "UPDATE D6601 SET D=1 WHERE PZZ_H=1;");
    anna.click("Act_Save");
    anna.expect_message("凭证在打开之后已被他人修改、审核或登帐,不能保存!请退出后重新打开该凭证。");
    EXPECT_EQ(books.value("SELECT SUM(J) FROM D6601A"), "100.00");
    EXPECT_EQ(anna.active(), "TF6661_1") << "what was typed is still there";
    written_past_forms = true; // posted without its balances
}

TEST_F(Meanwhile, no_voucher_enters_a_period_that_was_closed_while_it_was_being_saved) {
    new_voucher();
    anna.line(0, {{"ZY", "提现"}, {"KM_ID", "1001"}, {"J", "100"}});
    anna.line(1, {{"ZY", "提现"}, {"KM_ID", "1002"}, {"D", "100"}});
    meanwhile("UPDATE D6600 SET PARAM='2024-04' WHERE ID=2;");
    anna.click("Act_Save");
    anna.expect_message(refusal);
    EXPECT_EQ(vouchers(), "0");
    written_past_forms = true; // closed without posting
}

TEST_F(Meanwhile, a_period_that_got_a_voucher_is_not_closed) {
    anna.open(668);
    meanwhile(another_voucher);
    anna.click("btn_ok");
    anna.expect_message(refusal);
    EXPECT_EQ(books.value("SELECT PARAM FROM D6600 WHERE ID=2"), "2024-03");
    anna.click("btn_ok");
    anna.expect_message("本期还有未登帐的凭证，不可以进行结帐!");
}

TEST_F(Meanwhile, an_account_that_got_lines_is_not_deleted) {
    anna.open(681);
    anna.node("1131 应收账款");
    meanwhile(another_voucher);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.next_message(); // the question
    anna.expect_message(refusal);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6801 WHERE KM_ID='1131'"), "1");
}

TEST_F(Meanwhile, a_voucher_with_a_gap_before_it_is_not_posted_unseen) {
    one_voucher();
    audit_all();
    anna.open(663);
    meanwhile(another_voucher);
    anna.click("btn_ok");
    anna.expect_message(refusal);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "0");
}

TEST_F(Meanwhile, books_made_strict_keep_what_is_posted) {
    one_voucher();
    audit_all();
    post();
    anna.open(663);
    meanwhile("UPDATE SYS_SETTING SET VALUE='strict' WHERE NAME='mode';");
    anna.click("btn_re");
    anna.expect_message(refusal);
    EXPECT_EQ(books.value("SELECT COUNT(*) FROM D6601 WHERE D=1"), "1");
    anna.click("btn_re");
    EXPECT_NE(anna.next_message().find("严格"), std::string::npos);
}

TEST_F(Meanwhile, books_set_up_while_they_were_being_set_up_are_not_emptied) {
    books.execute("UPDATE D6600 SET PARAM='' WHERE ID IN (1,2);");
    anna.open(699);
    anna.click("LA2");
    anna.click("btn_ok"); // of the trial balance
    anna.expect_active("TF6699_2");
    meanwhile("UPDATE D6600 SET PARAM='2024-03' WHERE ID IN (1,2);" + another_voucher);
    anna.click("btn_ok");
    anna.expect_message(refusal);
    EXPECT_EQ(vouchers(), "1");
}

// The balances stood on the screen before the button was pressed.
TEST_F(Meanwhile, profit_and_loss_posted_after_the_balances_were_shown_is_not_left_behind) {
    new_voucher();
    save_voucher("1001", "5101", "100");
    anna.close();
    anna.close();
    audit_all();
    post();
    anna.open(667);
    anna.set("KM_ID", "314115");
    meanwhile("UPDATE D6602 SET D=D+7 WHERE KM_ID='5101' AND QJ='2024-03';");
    anna.click("btn_ok");
    anna.expect_message("损益科目的余额在打开之后已改变,没有结转!请关闭后重新打开本功能。");
    EXPECT_EQ(vouchers(), "1");
    books.execute("UPDATE D6602 SET D=D-7 WHERE KM_ID='5101' AND QJ='2024-03';" +
                  another_voucher); // posts nothing: the balances are those shown
    anna.click("btn_ok");
    EXPECT_EQ(vouchers(), "3");
    EXPECT_EQ(books.value("SELECT D FROM D6601A WHERE KM_ID='3131'"), "100.00");
}

// Others may work: only what the act was decided on counts.
TEST_F(Meanwhile, an_unrelated_change_disturbs_nobody) {
    new_voucher();
    meanwhile(another_voucher + "UPDATE D6803 SET ZY='别的摘要';");
    save_voucher("1001", "1002", "100");
    EXPECT_EQ(vouchers(), "2");
}

} // namespace tests

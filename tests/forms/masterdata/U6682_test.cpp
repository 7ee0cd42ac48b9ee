// Voucher words: at most one is the default.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

class VoucherWords : public FormDesk {
protected:
    VoucherWords() : FormDesk(682) {}
    void SetUp() override {
        data.answer("select * From d6802", {"PZZ text", "PZZ_PRINT text", "T int", "PYM text"},
                    {{"记", "记帐凭证", "1", "JZPZ"}, {"收", "收款凭证", "0", "SKPZ"}});
        data.answer("select pzz from d6802", {"pzz text"}, {});
        data.answer("SELECT COUNT(*)", {"I int"}, {{"0"}});
    }
};

TEST_F(VoucherWords, a_default_word_clears_the_others_in_the_same_batch) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("Edit1", "转");
    anna.set("PZZ_PRINT", "转帐凭证");
    anna.check("T");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(),
              "update d6802 set t=0;insert into d6802 (PZZ,PZZ_PRINT,T,pym)ValueS('转',"
              "'转帐凭证',1,'ZZPZ')");
    EXPECT_EQ(last_log().key, "转");
    EXPECT_EQ(last_log().operation, "Add");
}

TEST_F(VoucherWords, an_edited_word_that_is_no_default_leaves_the_others_alone) {
    Person& anna = person();
    anna.row(0);
    anna.click("Act_Modify");
    EXPECT_EQ(anna.value("Edit1"), "记");
    EXPECT_EQ(anna.value("PZZ_PRINT"), "记帐凭证");
    EXPECT_TRUE(anna.checked("T"));
    anna.set("PZZ_PRINT", "通用凭证");
    anna.check("T", false);
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(), "update d6802 set PZZ_PRINT='通用凭证',PYM='TYPZ',T=0 where PZZ='记'");
    anna.expect_active("TF6682");
    EXPECT_EQ(anna.rows()[0].at("PZZ_PRINT"), "通用凭证");
    EXPECT_EQ(anna.rows()[0].at("T"), "0");
}

TEST_F(VoucherWords, a_copy_starts_from_the_selected_word) {
    Person& anna = person();
    anna.row(1);
    anna.click("Act_CopyAdd");
    EXPECT_EQ(anna.value("Edit1"), "收");
    anna.set("Edit1", "现收");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(),
              "insert into d6802 (PZZ,PZZ_PRINT,T,pym)ValueS('现收','收款凭证',0,'SKPZ')");
    EXPECT_EQ(last_log().operation, "CopyAdd");
}

TEST_F(VoucherWords, a_known_word_is_refused) {
    data.answer("select pzz from d6802", {"pzz text"}, {{"收"}});
    Person& anna = person();
    anna.click("Act_Add");
    anna.set("Edit1", "收");
    anna.refused({{"op", "focus"}, {"control", "PZZ_PRINT"}});
    anna.expect_message("凭证字已登记!");
    EXPECT_EQ(anna.focused(), "Edit1");
    anna.click("btn_Cancel");
    anna.forget_messages();
}

TEST_F(VoucherWords, a_word_in_use_is_not_deleted) {
    Person& anna = person();
    anna.row(1);
    anna.answer_next(true);
    anna.click("Act_Delete");
    anna.forget_messages();
    EXPECT_EQ(last_batch(), "delete from d6802 Where pzz='收'");
    data.answer("SELECT COUNT(*)", {"I int"}, {{"1"}});
    anna.row(0);
    anna.click("Act_Delete");
    EXPECT_NE(anna.next_message().find("已有凭证使用该凭证字"), std::string::npos);
    EXPECT_EQ(data.executed().size(), 1u);
}

} // namespace
} // namespace tests

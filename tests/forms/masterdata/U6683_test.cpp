// Common summaries: texts that voucher lines offer.
#include "tests/forms/form_desk.h"

namespace tests {
namespace {

class Summaries : public FormDesk {
protected:
    Summaries() : FormDesk(683) {}
    void SetUp() override {
        data.answer("select * From d6803", {"GUID text", "ZY text", "PYM text"},
                    {{"G1", "收货款", "SHK"}});
    }
};

TEST_F(Summaries, a_new_one_gets_a_key_of_its_own_and_may_repeat_a_text) {
    Person& anna = person();
    anna.click("Act_Add");
    EXPECT_FALSE(anna.visible("ID"));
    anna.set("ZY", "收货款");
    anna.click("btn_ok");
    const std::string key = last_log().key;
    EXPECT_EQ(key.size(), 36u);
    EXPECT_EQ(last_batch(), "insert into d6803 (GUID,ZY,pym)ValueS('" + key + "','收货款','SHK')");
}

TEST_F(Summaries, a_copy_starts_blank) {
    Person& anna = person();
    anna.click("Act_CopyAdd");
    EXPECT_EQ(anna.value("ZY"), "");
}

TEST_F(Summaries, an_edited_one_keeps_its_key) {
    Person& anna = person();
    anna.click("Act_Modify");
    EXPECT_EQ(anna.value("ZY"), "收货款");
    anna.set("ZY", "收'货'款");
    anna.click("btn_ok");
    EXPECT_EQ(last_batch(), "update d6803 set ZY='收''货''款',pym='SHK' where GUID='G1'");
    EXPECT_EQ(anna.rows()[0].at("ZY"), "收'货'款");
}

TEST_F(Summaries, a_blank_one_is_refused) {
    Person& anna = person();
    anna.click("Act_Add");
    anna.refused({{"op", "click"}, {"control", "btn_ok"}});
    EXPECT_NE(anna.next_message().find("摘要"), std::string::npos);
    anna.forget_messages();
    EXPECT_TRUE(data.executed().empty());
}

} // namespace
} // namespace tests

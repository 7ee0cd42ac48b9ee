// Vouchers on paper: from the entry form, from the list, several at once.
#include "host/values/text.h"
#include "tests/forms/vouchers/voucher_desk.h"

namespace tests {
namespace {

class VoucherPrinting : public VoucherDesk {
protected:
    void SetUp() override {
        VoucherDesk::SetUp();
        data.answer("SELECT PZZ_PRINT FROM D6802 WHERE PZZ='记'", {"PZZ_PRINT text"},
                    {{"通用记帐凭证"}});
        data.answer("SELECT PZZ_PRINT FROM D6802", {"PZZ_PRINT text"}, {});
    }
};

const std::string not_saved = "单据还没有保存，请先按 F2 保存再打印!";

TEST_F(VoucherPrinting, a_voucher_is_printed_on_its_form_under_the_title_of_its_word) {
    start();
    anna->row(1);
    anna->double_click(1, "PZZ");
    anna->expect_active("TF6661_1");
    const PrintedPaper paper = anna->print();
    EXPECT_EQ(paper.title, "通用记帐凭证 2024-03 记-8");
    ASSERT_EQ(paper.pages.size(), 1U);
    for (const char* text : {"通用记帐凭证", "2024 年 03 月 06 日", "单位：测试公司",
                             "记 字  第 008 号", "李敏", "陈晓雯", "人民币伍佰捌拾伍元整", "√",
                             "打印 2024-03-15 09:00"})
        EXPECT_TRUE(paper.says(text)) << text;
    EXPECT_EQ(paper.size.width, 21000);
    EXPECT_EQ(paper.size.height, 14800);
}

TEST_F(VoucherPrinting, a_voucher_that_is_not_saved_is_not_printed) {
    new_voucher();
    anna->click("Act_Print");
    anna->expect_message(not_saved);
    type_balanced_lines();
    anna->click("Act_Preview");
    anna->expect_message(not_saved);
}

TEST_F(VoucherPrinting, the_list_prints_as_a_list_with_its_conditions) {
    start();
    const PrintedPaper paper = anna->print();
    EXPECT_EQ(paper.title, "录凭证");
    EXPECT_FALSE(paper.says("金额单位：元")) << "heads hold no amounts";
    EXPECT_TRUE(paper.says(host::trimmed(anna->value("ConditionLabel"))));
    EXPECT_TRUE(paper.says("第 1 页  共 1 页"));
    const auto line = paper.line_of("2024-03-05");
    EXPECT_EQ(line[0], "2024-03");
    EXPECT_EQ(line[1], "记");
    EXPECT_EQ(line[2], "7");
}

TEST_F(VoucherPrinting, the_marked_vouchers_are_printed_one_after_the_other) {
    start();
    anna->request({{"op", "row"}, {"control", "DBGridEh"}, {"row", 0}, {"mark", true}});
    anna->request({{"op", "row"}, {"control", "DBGridEh"}, {"row", 1}, {"mark", true}});
    anna->request({{"op", "answer"}, {"file", "all.pdf"}});
    anna->click("Act_PrintVouchers");
    anna->expect_message("已打印 2 页到 all.pdf");
}

TEST_F(VoucherPrinting, who_may_not_print_is_refused) {
    PersonOptions options;
    options.may = [](const host::Right& right) { return right.action != "print"; };
    start(options);
    for (const char* action : {"Act_Print", "Act_Preview", "Act_PrintVouchers"}) {
        anna->cannot_click(action);
        EXPECT_NE(anna->next_message().find("权限"), std::string::npos) << action;
    }
}

} // namespace
} // namespace tests

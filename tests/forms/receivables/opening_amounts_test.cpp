// The opening amounts of customers and suppliers: what is read, typed, refused and saved.
#include "tests/forms/form_desk.h"
#include "tests/forms/small_books.h"

namespace tests {
namespace {

struct Side {
    int code;
    const char *caption, *table, *query, *columns, *negative_advance, *negative_opening;
};

const Side sides[] = {
    {628, "期初应收款", "D1102",
     "SELECT D1102.KH_GYS_ID,KG_NAME,FULL_NAME,BEGIN_MONEY, BEGINYS_MONEY, "
     "SUMMONEY,vd631.ym,vd631.ysm,vd631.xjys FROM D1102 INNER JOIN VD631 ON "
     "D1102.KH_GYS_ID=VD631.KH_GYS_ID order by D1102.KH_GYS_ID",
     "KH_GYS_ID 客户编号, KG_NAME 简称, FULL_NAME 全称, BEGINYS_MONEY 期初预收, BEGIN_MONEY "
     "期初应收, SUMMONEY 往来应收, YM 应收, YSM 预收, XJYS 实际应收",
     "期初预收不可以小于0", "期初应收不可以小于0"},
    {629, "期初应付款", "D1103",
     "SELECT D1103.KH_GYS_ID,KG_NAME,FULL_NAME,BEGIN_MONEY, BEGINYS_MONEY, "
     "SUMMONEY,vd641.ym,vd641.ysm,vd641.xjys FROM D1103 INNER JOIN VD641 ON "
     "D1103.KH_GYS_ID=VD641.KH_GYS_ID where D1103.kh_gys_id>'' order by D1103.KH_GYS_ID",
     "KH_GYS_ID 供应商编号, KG_NAME 简称, FULL_NAME 全称, BEGINYS_MONEY 期初预付, BEGIN_MONEY "
     "期初应付, SUMMONEY 往来应付, YM 应付, YSM 预付, XJYS 实际应付",
     "期初预付不可以小于0", "期初应付不可以小于0"},
};

class OpeningAmounts : public testing::TestWithParam<Side> {
protected:
    OpeningAmounts() {
        answer_as_small_books(data);
        answer_current_period(data, "");
        data.answer(GetParam().query,
                    {"KH_GYS_ID text", "KG_NAME text", "FULL_NAME text", "BEGIN_MONEY money",
                     "BEGINYS_MONEY money", "SUMMONEY money", "ym money", "ysm money",
                     "xjys money"},
                    {{"C01", "东方", "东方贸易有限公司", "100.00", "30.00", "70.00", "8", "3", "5"},
                     {"C02", "海天", "海天商行", "0.00", "0.00", "0.00", "1", "0", "1"}});
    }
    Person& person() {
        if (!anna) {
            anna = std::make_unique<Person>(data);
            anna->open(GetParam().code);
        }
        return *anna;
    }
    std::vector<std::string> batches() const {
        std::vector<std::string> texts;
        for (const auto& executed : data.executed()) texts.push_back(executed.batch);
        return texts;
    }

    FakeData data;
    std::unique_ptr<Person> anna;
};

TEST_P(OpeningAmounts, lists_the_parties_with_what_they_owe_and_the_sums) {
    Person& anna = person();
    EXPECT_EQ(anna.caption(), GetParam().caption);
    const std::vector<std::string> sent = anna.sent_texts();
    ASSERT_FALSE(sent.empty());
    EXPECT_EQ(sent.back(), GetParam().query);
    std::string shown;
    const auto grid = anna.control("DBGridEh");
    for (const auto& column : grid.at("columns"))
        shown += (shown.empty() ? "" : ", ") + column.at("field").get<std::string>() + " " +
                 column.at("title").get<std::string>();
    EXPECT_EQ(shown, GetParam().columns);
    const std::pair<const char*, const char*> sums[] = {
        {"BEGIN_MONEY", "100.00"}, {"BEGINYS_MONEY", "30.00"}, {"SUMMONEY", "70.00"},
        {"YM", "9.00"},            {"YSM", "3.00"},            {"XJYS", "6.00"}};
    for (const auto& [field, sum] : sums) EXPECT_EQ(anna.footer(field), sum) << field;
}

TEST_P(OpeningAmounts, what_is_typed_makes_the_balance_and_is_saved_with_it) {
    Person& anna = person();
    anna.cell(0, "BEGINYS_MONEY", "40.005");
    EXPECT_EQ(anna.rows()[0].at("BEGINYS_MONEY"), "40.01");
    EXPECT_EQ(anna.rows()[0].at("SUMMONEY"), "59.99");
    anna.cell(1, "BEGIN_MONEY", "250");
    EXPECT_EQ(anna.rows()[1].at("SUMMONEY"), "250.00");
    EXPECT_EQ(anna.footer("SUMMONEY"), "309.99");
    anna.key("F2");
    ASSERT_EQ(batches().size(), 1u);
    const std::string update = std::string("UPDATE ") + GetParam().table + " SET ";
    EXPECT_EQ(batches()[0],
              update + "BEGINYS_MONEY=40.01,SUMMONEY=59.99 WHERE KH_GYS_ID='C01';" + update +
                  "BEGIN_MONEY=250,SUMMONEY=250 WHERE KH_GYS_ID='C02';");
    EXPECT_EQ(data.executed()[0].log.function, std::to_string(GetParam().code));
}

TEST_P(OpeningAmounts, an_emptied_amount_is_none) {
    person().cell(0, "BEGIN_MONEY", "");
    EXPECT_EQ(person().rows()[0].at("BEGIN_MONEY"), "0.00");
    EXPECT_EQ(person().rows()[0].at("SUMMONEY"), "-30.00");
}

TEST_P(OpeningAmounts, a_negative_amount_is_refused_and_nothing_is_saved) {
    Person& anna = person();
    anna.cell(0, "BEGIN_MONEY", "-1");
    anna.cell(1, "BEGINYS_MONEY", "-0.01");
    anna.click("Act_Save");
    anna.expect_message(GetParam().negative_opening); // rows are looked at in their order
    anna.cell(0, "BEGIN_MONEY", "0");
    anna.click("Act_Save");
    anna.expect_message(GetParam().negative_advance);
    EXPECT_TRUE(data.executed().empty());
    anna.cell(1, "BEGINYS_MONEY", "0");
    anna.click("Act_Save");
    EXPECT_EQ(data.executed().size(), 1u);
}

TEST_P(OpeningAmounts, only_the_two_amounts_are_typed_and_no_party_is_added) {
    Person& anna = person();
    for (const char* field : {"KH_GYS_ID", "KG_NAME", "FULL_NAME", "SUMMONEY", "YM", "XJYS"})
        EXPECT_NE(anna.cannot_cell(0, field, "1"), "") << field;
    EXPECT_NE(anna.cannot_cell(2, "BEGIN_MONEY", "1"), "");
    anna.cannot_click("Act_Add");
    anna.cannot_click("Act_Delete");
    anna.forget_messages();
}

TEST_P(OpeningAmounts, once_the_books_have_started_they_are_only_shown) {
    answer_current_period(data, "2024-03");
    Person& anna = person();
    anna.expect_message("帐套已启用，期初数据不能被更改!");
    EXPECT_TRUE(anna.visible("ReadOnlyHint"));
    EXPECT_EQ(anna.value("ReadOnlyHint"), "帐套已启用，期初数据不能被更改!");
    EXPECT_NE(anna.cannot_cell(0, "BEGIN_MONEY", "1"), "");
    anna.cannot_click("Act_Save");
    EXPECT_EQ(anna.row_count(), 2);
}

TEST_P(OpeningAmounts, books_started_by_somebody_else_meanwhile_refuse_what_was_typed) {
    Person& anna = person();
    EXPECT_FALSE(anna.visible("ReadOnlyHint"));
    anna.cell(0, "BEGIN_MONEY", "1");
    answer_current_period(data, "2024-03");
    anna.click("Act_Save");
    anna.expect_message("帐套已启用，期初数据不能被更改!");
    EXPECT_TRUE(data.executed().empty());
}

INSTANTIATE_TEST_SUITE_P(BothSides, OpeningAmounts, testing::ValuesIn(sides),
                         [](const auto& tested) {
                             return "TF6" + std::to_string(tested.param.code);
                         });

} // namespace
} // namespace tests

// Lists order as people expect: numbers by size, Chinese by pinyin, equals as they came.
#include "host/dataset/client_dataset.h"
#include "host/dataset/pinyin_order.h"

namespace host {

namespace {

std::vector<std::string> column(TClientDataSet& rows, const std::string& field) {
    std::vector<std::string> texts;
    for (rows.First(); !rows.Eof(); rows.Next()) texts.push_back(rows.FieldByName(field).AsText());
    return texts;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(Sort, chinese_orders_by_pinyin_and_latin_before_it) {
    TClientDataSet rows;
    rows.DefineField("NAME", FieldType::Text);
    rows.Open();
    for (const char* name : {"张三", "李四", "王五", "安娜", "bank", "ATM", "陈六"}) {
        rows.Append();
        rows.FieldByName("NAME").SetValue(std::string(name));
        rows.Post();
    }
    rows.SortBy("name", false); // an, chen, li, wang, zhang
    EXPECT_EQ(column(rows, "NAME"),
              (Texts{"ATM", "bank", "安娜", "陈六", "李四", "王五", "张三"}));
    rows.SortBy("NAME", true);
    EXPECT_EQ(column(rows, "NAME").front(), "张三");
    rows.SortBy("", false);
    EXPECT_EQ(column(rows, "NAME").front(), "张三"); // as loaded
}

TEST(Sort, numbers_order_by_size_with_empty_ones_first_and_equals_as_they_came) {
    TClientDataSet rows;
    rows.DefineField("J", FieldType::Amount);
    rows.DefineField("N", FieldType::Integer);
    rows.Open();
    int n = 0;
    for (const char* amount : {"10", "9", "-3", "", "10", "9"}) {
        rows.Append();
        rows.FieldByName("N").SetValue(std::int64_t{n++});
        if (*amount != '\0') rows.FieldByName("J").SetValue(*Amount::parse(amount));
        rows.Post();
    }
    rows.SortBy("J", false);
    EXPECT_EQ(column(rows, "N"), (Texts{"3", "2", "1", "5", "0", "4"}));
    rows.SortBy("J", true);
    EXPECT_EQ(column(rows, "N"), (Texts{"0", "4", "1", "5", "2", "3"}));
}

TEST(Sort, rows_equal_in_one_field_order_by_the_next_of_a_list) {
    TClientDataSet rows;
    rows.DefineField("DAY", FieldType::Integer);
    rows.DefineField("NOID", FieldType::Text);
    rows.Open();
    const std::pair<std::int64_t, const char*> documents[] = {
        {2, "B1"}, {1, "B3"}, {2, "A9"}, {1, "B2"}};
    for (const auto& [day, number] : documents) {
        rows.Append();
        rows.FieldByName("DAY").SetValue(day);
        rows.FieldByName("NOID").SetValue(std::string(number));
        rows.Post();
    }
    rows.SortBy("day,noid", false);
    EXPECT_EQ(column(rows, "NOID"), (Texts{"B2", "B3", "A9", "B1"}));
    EXPECT_EQ(rows.sorted_by(), "DAY,NOID");
    rows.SortBy("day,noid", true);
    EXPECT_EQ(column(rows, "NOID"), (Texts{"B1", "A9", "B3", "B2"}));
    rows.SortBy("NOID", false);
    EXPECT_EQ(column(rows, "NOID"), (Texts{"A9", "B1", "B2", "B3"}));
}

TEST(Sort, the_row_looked_at_stays_the_current_one) {
    TClientDataSet rows;
    rows.DefineField("N", FieldType::Integer);
    rows.Open();
    for (const int n : {3, 1, 2}) {
        rows.Append();
        rows.FieldByName("N").SetValue(std::int64_t{n});
        rows.Post();
    }
    rows.GotoRow(0); // the 3
    rows.SortBy("N", false);
    EXPECT_EQ(rows.RecNo(), 2);
    EXPECT_EQ(rows.FieldByName("N").AsInteger(), 3);
}

TEST(Sort, asked_for_again_takes_in_what_was_typed_since) {
    TClientDataSet rows;
    rows.DefineField("N", FieldType::Integer);
    rows.Open();
    for (const int n : {3, 1, 2}) {
        rows.Append();
        rows.FieldByName("N").SetValue(std::int64_t{n});
        rows.Post();
    }
    rows.SortBy("N", false);
    rows.SortBy("N", false);
    EXPECT_EQ(column(rows, "N"), (Texts{"1", "2", "3"}));
    rows.GotoRow(0);
    rows.Edit();
    rows.FieldByName("N").SetValue(std::int64_t{9});
    rows.SortBy("N", false);
    EXPECT_EQ(column(rows, "N"), (Texts{"2", "3", "9"}));
    rows.Append();
    rows.FieldByName("N").SetValue(std::int64_t{0});
    rows.SortBy("N", false);
    EXPECT_EQ(column(rows, "N"), (Texts{"0", "2", "3", "9"}));
    rows.SortBy("N", true);
    EXPECT_EQ(column(rows, "N"), (Texts{"9", "3", "2", "0"}));
}

TEST(PinyinOrder, codes_of_digits_have_the_ranks_they_have_among_other_texts) {
    const std::vector<std::string_view> codes = {"1101", "11", "2", "1002", "", "11", "1101001",
                                                 "9", "10"};
    std::vector<std::string_view> mixed = codes;
    mixed.push_back("银行");
    std::vector<std::uint32_t> among_others = pinyin_ranks(mixed);
    among_others.pop_back();
    EXPECT_EQ(pinyin_ranks(codes), among_others);
    EXPECT_EQ(among_others[1], among_others[5]);
}

TEST(PinyinOrder, the_same_text_in_another_case_has_the_same_rank) {
    const auto ranks = pinyin_ranks({"abc", "ABC", "b"});
    EXPECT_EQ(ranks[0], ranks[1]);
    EXPECT_LT(ranks[0], ranks[2]);
    const auto mixed = pinyin_ranks({"abc", "ABC", "银"});
    EXPECT_EQ(mixed[0], mixed[1]);
}

} // namespace host

// A dataset: cursor, states, events, filter and sums.
#include "host/dataset/client_dataset.h"

#include <random>

#include "host/values/errors.h"

namespace host {

namespace {

// Voucher lines 1002 银行存款 500.00 debit, 1001 现金 500.00 credit, 6602 empty.
class Lines : public ::testing::Test {
protected:
    Lines() {
        lines.DefineField("KM_ID", FieldType::Text, 50);
        lines.DefineField("J", FieldType::Amount).DisplayFormat = "0.00";
        lines.DefineField("INX", FieldType::Integer);
        lines.Open();
        add("1002", "500");
        add("1001", "-500.5");
        add("6602", "");
    }
    void add(const std::string& account, const std::string& debit) {
        lines.Append();
        lines.FieldByName("KM_ID").SetValue(account);
        if (!debit.empty()) lines.FieldByName("j").SetValue(*Amount::parse(debit));
        lines.Post();
    }
    std::vector<std::string> accounts() {
        std::vector<std::string> found;
        for (lines.First(); !lines.Eof(); lines.Next())
            found.push_back(lines.FieldByName("KM_ID").AsText());
        return found;
    }
    using Texts = std::vector<std::string>;
    TClientDataSet lines;
};

} // namespace

TEST_F(Lines, the_cursor_walks_every_row_in_both_directions) {
    EXPECT_EQ(accounts(), (Texts{"1002", "1001", "6602"}));
    EXPECT_TRUE(lines.Eof());
    EXPECT_EQ(lines.RecNo(), 2);
    Texts backwards;
    for (lines.Last(); !lines.Bof(); lines.Prior())
        backwards.push_back(lines.FieldByName("KM_ID").AsText());
    EXPECT_EQ(backwards, (Texts{"6602", "1001", "1002"}));
}

TEST_F(Lines, an_empty_dataset_stands_at_both_ends_and_reads_as_null) {
    lines.EmptyDataSet();
    EXPECT_TRUE(lines.Eof());
    EXPECT_TRUE(lines.Bof());
    EXPECT_EQ(lines.RecNo(), -1);
    EXPECT_TRUE(lines.FieldByName("J").IsNull());
    EXPECT_EQ(lines.FieldByName("J").AsAmount(), Amount());
    lines.Next();
    EXPECT_THROW(lines.Edit(), std::logic_error);
    EXPECT_THROW(lines.Delete(), std::logic_error);
}

TEST_F(Lines, fields_are_found_without_regard_to_case) {
    EXPECT_EQ(&lines.FieldByName("km_id"), &lines.FieldByName("KM_ID"));
    EXPECT_EQ(lines.FindField("none"), nullptr);
    EXPECT_THROW(lines.FieldByName("none"), std::logic_error);
}

TEST_F(Lines, cancel_brings_a_changed_row_back_and_its_sum) {
    lines.First();
    lines.Edit();
    lines.FieldByName("J").SetValue(*Amount::parse("7"));
    EXPECT_EQ(lines.Sum("J"), *Amount::parse("-493.5"));
    lines.Cancel();
    EXPECT_EQ(lines.FieldByName("J").AsText(), "500");
    EXPECT_EQ(lines.Sum("J"), *Amount::parse("-0.5"));
    EXPECT_EQ(lines.State(), DataSetState::Browse);
}

TEST_F(Lines, moving_away_posts_a_changed_row_and_drops_one_only_begun) {
    int posted = 0;
    lines.AfterPost = [&] { ++posted; };
    lines.Append();
    lines.First();
    EXPECT_EQ(lines.RecordCount(), 3);
    EXPECT_EQ(posted, 0);
    lines.Append();
    lines.FieldByName("KM_ID").SetValue(std::string("2202"));
    lines.First();
    EXPECT_EQ(lines.RecordCount(), 4);
    EXPECT_EQ(posted, 1);
}

TEST_F(Lines, what_a_new_row_is_filled_with_is_not_yet_work) {
    lines.AfterInsert = [&] { lines.FieldByName("INX").SetValue(std::int64_t{9}); };
    lines.Append();
    EXPECT_EQ(lines.FieldByName("INX").AsInteger(), 9);
    EXPECT_FALSE(lines.RowModified());
    lines.First();
    EXPECT_EQ(lines.RecordCount(), 3);
}

TEST_F(Lines, a_refused_post_keeps_the_row_in_editing) {
    lines.BeforePost = [] { Abort(); };
    lines.First();
    lines.Edit();
    lines.FieldByName("KM_ID").SetValue(std::string("1003"));
    EXPECT_THROW(lines.Next(), EAbort);
    EXPECT_EQ(lines.State(), DataSetState::Edit);
    EXPECT_EQ(lines.RecNo(), 0);
    EXPECT_EQ(lines.FieldByName("KM_ID").AsText(), "1003");
}

TEST_F(Lines, a_row_is_inserted_before_the_current_one) {
    lines.GotoRow(1);
    lines.Insert();
    lines.FieldByName("KM_ID").SetValue(std::string("1009"));
    lines.Post();
    EXPECT_EQ(accounts(), (Texts{"1002", "1009", "1001", "6602"}));
}

TEST_F(Lines, a_field_is_not_written_while_its_row_is_only_browsed) {
    EXPECT_THROW(lines.FieldByName("KM_ID").SetValue(std::string("1")), std::logic_error);
}

TEST_F(Lines, a_filter_shows_some_rows_and_its_removal_all) {
    lines.SetFilter([](const TClientDataSet& row) {
        return row.FieldByName("KM_ID").AsText().starts_with("1");
    });
    EXPECT_EQ(accounts(), (Texts{"1002", "1001"}));
    EXPECT_EQ(lines.Sum("J"), *Amount::parse("-0.5"));
    lines.SetFilter(nullptr);
    EXPECT_EQ(accounts(), (Texts{"1002", "1001", "6602"}));
}

TEST_F(Lines, locate_finds_without_regard_to_case_and_stays_where_nothing_is_found) {
    lines.Append();
    lines.FieldByName("KM_ID").SetValue(std::string("A1"));
    lines.Post();
    EXPECT_TRUE(lines.Locate("KM_ID", "1001"));
    EXPECT_EQ(lines.RecNo(), 1);
    EXPECT_TRUE(lines.Locate("KM_ID", "a1"));
    EXPECT_FALSE(lines.Locate("KM_ID", "9999"));
    EXPECT_EQ(lines.RecNo(), 3);
}

TEST_F(Lines, looking_at_another_row_moves_nothing) {
    lines.First();
    {
        const TClientDataSet::Peek peek(lines, 1);
        EXPECT_EQ(lines.FieldByName("KM_ID").AsText(), "1001");
    }
    EXPECT_EQ(lines.FieldByName("KM_ID").AsText(), "1002");
    EXPECT_EQ(lines.display_at(0, lines.FieldByName("J").index()), "500.00");
}

TEST_F(Lines, a_copy_has_structure_and_rows_of_its_own) {
    TClientDataSet copy;
    copy.CopyFrom(lines);
    copy.First();
    copy.Edit();
    copy.FieldByName("KM_ID").SetValue(std::string("9"));
    copy.Post();
    EXPECT_EQ(copy.RecordCount(), 3);
    EXPECT_EQ(copy.Sum("J"), *Amount::parse("-0.5"));
    lines.First();
    EXPECT_EQ(lines.FieldByName("KM_ID").AsText(), "1002");
}

TEST_F(Lines, saved_work_is_no_unsaved_work) {
    EXPECT_TRUE(lines.Modified());
    lines.MarkSaved();
    EXPECT_FALSE(lines.Modified());
    lines.Append();
    EXPECT_FALSE(lines.Modified()); // an empty row is no work
    lines.FieldByName("KM_ID").SetValue(std::string("1"));
    EXPECT_TRUE(lines.Modified());
    lines.Cancel();
    EXPECT_FALSE(lines.Modified());
}

TEST_F(Lines, a_null_written_into_an_amount_counts_nothing) {
    lines.First();
    lines.Edit();
    lines.FieldByName("J").Clear();
    EXPECT_EQ(lines.Sum("J"), *Amount::parse("-500.5"));
    EXPECT_TRUE(lines.FieldByName("J").IsNull());
}

TEST_F(Lines, sums_follow_every_change) {
    std::mt19937 chance(11);
    lines.Sum("J"); // kept from here on
    for (int step = 0; step < 2'000; ++step) {
        const Amount any = Amount::from_cents(static_cast<int>(chance() % 20'001) - 10'000);
        if (!lines.IsEmpty()) lines.GotoRow(static_cast<int>(chance()) % lines.RecordCount());
        switch (chance() % 5) {
        case 0: lines.Append(); lines.FieldByName("J").SetValue(any); break;
        case 1: if (!lines.IsEmpty()) lines.Delete(); break;
        case 2: lines.Cancel(); break;
        default:
            if (lines.IsEmpty()) break;
            lines.Edit();
            lines.FieldByName("J").SetValue(any);
        }
        Amount counted;
        for (int row = 0; row < lines.RecordCount(); ++row) {
            const Value value = lines.value_at(row, 1);
            if (!is_null(value)) counted += std::get<Amount>(value);
        }
        ASSERT_EQ(lines.Sum("J"), counted) << "after step " << step;
    }
}

TEST_F(Lines, a_sum_no_amount_can_hold_throws_and_smaller_ones_return) {
    for (int i = 0; i < 2; ++i) {
        lines.Append();
        lines.FieldByName("J").SetValue(Amount::from_units(INT64_MAX - 10));
        lines.Post();
    }
    EXPECT_THROW(lines.Sum("J"), std::overflow_error);
    lines.Delete();
    lines.Delete();
    EXPECT_EQ(lines.Sum("J"), *Amount::parse("-0.5"));
}

TEST_F(Lines, text_is_no_sum) { EXPECT_THROW(lines.Sum("KM_ID"), std::logic_error); }

} // namespace host

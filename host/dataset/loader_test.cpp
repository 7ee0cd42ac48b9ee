// What a query answers becomes the dataset's content, all of it or nothing.
#include "host/dataset/client_dataset.h"
#include "host/values/errors.h"

namespace host {

namespace {

CellView text_cell(const char* text) {
    CellView cell;
    cell.null = false;
    cell.text = text;
    return cell;
}

CellView number_cell(std::int64_t number) {
    CellView cell;
    cell.null = false;
    cell.integer = number;
    return cell;
}

} // namespace

TEST(Loader, fields_defined_before_keep_type_format_and_handlers) {
    TClientDataSet rows;
    TField& amount = rows.DefineField("J", FieldType::Amount);
    amount.DisplayFormat = "0.00";
    amount.OnGetText = [](const TField&) { return std::string("shown"); };
    rows.DefineField("NOTE", FieldType::Text);
    const auto loader = rows.loader();
    loader->columns({{"KM_ID", FieldType::Text, 50}, {"j", FieldType::Integer}});
    loader->row({text_cell("1002"), number_cell(5)});
    loader->commit();
    EXPECT_EQ(&rows.FieldByName("J"), &amount);
    EXPECT_EQ(amount.Type, FieldType::Amount);
    EXPECT_EQ(amount.AsAmount(), Amount::from_whole(5));
    EXPECT_EQ(amount.DisplayText(), "shown");
    EXPECT_TRUE(rows.FieldByName("NOTE").IsNull()); // not answered, but there
    EXPECT_EQ(rows.FieldByName("KM_ID").Size, 50);
}

TEST(Loader, a_text_field_takes_a_number_with_all_its_digits) {
    TClientDataSet rows;
    rows.DefineField("A", FieldType::Text);
    rows.DefineField("B", FieldType::Text);
    const auto loader = rows.loader();
    loader->columns({{"A", FieldType::Amount}, {"B", FieldType::Amount}});
    CellView third = number_cell(3333);
    third.text = "0.333333";
    loader->row({third, number_cell(25000)});
    loader->commit();
    EXPECT_EQ(rows.FieldByName("A").AsText(), "0.333333");
    EXPECT_EQ(rows.FieldByName("B").AsText(), "2.5");
}

TEST(Loader, fields_of_the_query_before_go_with_it) {
    TClientDataSet rows;
    auto loader = rows.loader();
    loader->columns({{"A", FieldType::Text}});
    loader->commit();
    loader = rows.loader();
    loader->columns({{"B", FieldType::Text}});
    loader->commit();
    EXPECT_EQ(rows.FindField("A"), nullptr);
    EXPECT_NE(rows.FindField("B"), nullptr);
}

TEST(Loader, without_commit_nothing_changes) {
    TClientDataSet rows;
    rows.DefineField("A", FieldType::Text);
    rows.Open();
    rows.Append();
    rows.FieldByName("A").SetValue(std::string("kept"));
    rows.Post();
    {
        const auto loader = rows.loader();
        loader->columns({{"A", FieldType::Text}});
        loader->row({text_cell("half")});
    }
    EXPECT_EQ(rows.FieldByName("A").AsText(), "kept");
}

TEST(Loader, a_name_answered_twice_and_one_without_a_name_are_told_apart) {
    TClientDataSet rows;
    const auto loader = rows.loader();
    loader->columns({{"NOID", FieldType::Text}, {"noid", FieldType::Text}, {"", FieldType::Text},
                     {"NOID", FieldType::Text}});
    loader->row({text_cell("a"), text_cell("b"), text_cell("c"), text_cell("d")});
    loader->commit();
    EXPECT_EQ(rows.FieldByName("NOID").AsText(), "a");
    EXPECT_EQ(rows.FieldByName("NOID_1").AsText(), "b");
    EXPECT_EQ(rows.FieldByName("COLUMN3").AsText(), "c");
    EXPECT_EQ(rows.FieldByName("NOID_2").AsText(), "d");
}

TEST(Loader, what_does_not_fit_a_defined_field_is_an_error) {
    TClientDataSet rows;
    rows.DefineField("J", FieldType::Amount);
    const auto loader = rows.loader();
    loader->columns({{"J", FieldType::Text}});
    EXPECT_THROW(loader->row({text_cell("abc")}), DataError);
}

TEST(Loader, a_million_rows_of_ten_fields_stay_under_200_megabytes) {
    TClientDataSet rows;
    const auto loader = rows.loader();
    std::vector<ColumnDescription> columns;
    for (int i = 0; i < 4; ++i) columns.push_back({"T" + std::to_string(i), FieldType::Text});
    for (int i = 0; i < 6; ++i) columns.push_back({"N" + std::to_string(i), FieldType::Amount});
    loader->columns(columns);
    std::vector<CellView> cells(10, number_cell(12'345));
    for (int row = 0; row < 1'000'000; ++row) {
        // Period, voucher key, account, summary: as a list of vouchers answers them.
        const std::string key = "2024-03记" + std::to_string(row);
        const std::string summary = "付货款 " + std::to_string(row % 1000);
        cells[0] = text_cell("2024-03");
        cells[1] = text_cell(key.c_str());
        cells[2] = text_cell("100201");
        cells[3] = text_cell(summary.c_str());
        loader->row(cells);
    }
    loader->commit();
    EXPECT_EQ(rows.RecordCount(), 1'000'000);
    EXPECT_EQ(rows.text_at(999'999, 1), "2024-03记999999");
    EXPECT_EQ(rows.Sum("N3"), Amount::from_units(12'345'000'000));
    EXPECT_LT(rows.bytes(), 200U * 1024 * 1024);
}

} // namespace host

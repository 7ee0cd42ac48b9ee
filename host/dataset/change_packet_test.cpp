// The statements of a dataset's changes bring the table to what is shown.
#include "host/dataset/client_dataset.h"

namespace host {

namespace {

// D6804 with two rows as loaded: 01 差旅费, 02 办公费.
class Categories : public ::testing::Test {
protected:
    Categories() {
        rows.DefineField("SZLB", FieldType::Text);
        rows.DefineField("SZLB_NAME", FieldType::Text);
        rows.DefineField("J", FieldType::Amount);
        rows.Open();
        add("01", "差旅费");
        add("02", "办公费");
        rows.MarkSaved();
    }
    void add(const char* code, const char* name) {
        rows.Append();
        rows.FieldByName("SZLB").SetValue(std::string(code));
        rows.FieldByName("SZLB_NAME").SetValue(std::string(name));
        rows.Post();
    }
    void change(int row, const char* field, const char* text) {
        rows.GotoRow(row);
        rows.Edit();
        rows.FieldByName(field).SetValue(std::string(text));
        rows.Post();
    }
    std::vector<std::string> statements() { return rows.ChangeStatements("D6804", "SZLB"); }
    using Texts = std::vector<std::string>;
    TClientDataSet rows;
};

} // namespace

TEST_F(Categories, without_changes_there_are_no_statements) {
    EXPECT_TRUE(statements().empty());
    change(0, "SZLB_NAME", "差旅费");
    EXPECT_TRUE(statements().empty());
}

TEST_F(Categories, a_change_names_only_what_changed_under_the_key_it_was_loaded_with) {
    change(0, "SZLB_NAME", "O'Brien");
    change(0, "SZLB", "09");
    EXPECT_EQ(statements(), (Texts{"UPDATE D6804 SET SZLB='09',SZLB_NAME='O''Brien' "
                                   "WHERE SZLB='01'"}));
}

TEST_F(Categories, what_is_gone_comes_first_so_that_its_key_is_free) {
    rows.First();
    rows.Delete();
    add("01", "新");
    EXPECT_EQ(statements(), (Texts{"DELETE FROM D6804 WHERE SZLB='01'",
                                   "INSERT INTO D6804 (SZLB,SZLB_NAME) VALUES ('01','新')"}));
}

TEST_F(Categories, a_row_added_and_deleted_again_leaves_no_trace) {
    add("03", "x");
    rows.Delete();
    EXPECT_TRUE(statements().empty());
    EXPECT_FALSE(rows.Modified());
}

TEST_F(Categories, a_changed_row_that_is_deleted_is_deleted_by_its_old_key) {
    change(1, "SZLB", "22");
    rows.Delete();
    EXPECT_EQ(statements(), (Texts{"DELETE FROM D6804 WHERE SZLB='02'"}));
}

TEST_F(Categories, amounts_are_written_plain) {
    rows.First();
    rows.Edit();
    rows.FieldByName("J").SetValue(*Amount::parse("-12.50"));
    rows.Post();
    EXPECT_EQ(statements(), (Texts{"UPDATE D6804 SET J=-12.5 WHERE SZLB='01'"}));
}

} // namespace host

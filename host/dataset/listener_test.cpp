// Renderers are told what happened, in display positions.
#include "host/dataset/client_dataset.h"

namespace host {

namespace {

struct Notes : DataSetListener {
    std::vector<std::string> told;
    void note(const char* what, int row) { told.push_back(what + std::to_string(row)); }
    void dataset_reset() override { told.push_back("reset"); }
    void row_changed(int row) override { note("changed ", row); }
    void rows_inserted(int first, int) override { note("inserted ", first); }
    void rows_removed(int first, int) override { note("removed ", first); }
    void cursor_moved(int row) override { note("cursor ", row); }
    void dataset_gone() override { told.push_back("gone"); }
    bool has(const std::string& one) const {
        return std::find(told.begin(), told.end(), one) != told.end();
    }
};

} // namespace

TEST(DataSetListener, rows_are_told_as_they_come_change_and_go) {
    Notes notes;
    {
        TClientDataSet words;
        words.DefineField("PZZ", FieldType::Text);
        words.add_listener(&notes);
        words.Open();
        EXPECT_TRUE(notes.has("reset"));
        words.Append();
        EXPECT_TRUE(notes.has("inserted 0"));
        words.FieldByName("PZZ").SetValue(std::string("记"));
        EXPECT_TRUE(notes.has("changed 0"));
        words.Post();
        words.Delete();
        EXPECT_TRUE(notes.has("removed 0"));
    }
    EXPECT_EQ(notes.told.back(), "gone");
}

TEST(DataSetListener, setting_what_is_held_already_tells_nobody) {
    TClientDataSet words;
    words.DefineField("PZZ", FieldType::Text);
    words.Open();
    words.Append();
    words.FieldByName("PZZ").SetValue(std::string("记"));
    Notes notes;
    words.add_listener(&notes);
    words.FieldByName("PZZ").SetValue(std::string("记"));
    EXPECT_TRUE(notes.told.empty());
    words.remove_listener(&notes);
}

TEST(DataSetListener, between_disable_and_enable_only_a_reset_is_told) {
    TClientDataSet words;
    words.DefineField("PZZ", FieldType::Text);
    words.Open();
    Notes notes;
    words.add_listener(&notes);
    words.DisableControls();
    words.Append();
    words.FieldByName("PZZ").SetValue(std::string("记"));
    words.Post();
    EXPECT_TRUE(notes.told.empty());
    words.EnableControls();
    EXPECT_EQ(notes.told, std::vector<std::string>{"reset"});
    words.remove_listener(&notes);
}

} // namespace host

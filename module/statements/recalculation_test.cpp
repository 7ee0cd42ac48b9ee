// How a recalculation tells where it is, and what stopping it leaves behind.
#include "host/forms/event_gate.h"
#include "module/statements/U6671.h"
#include "tests/support/fake_interface.h"

namespace module {
namespace {

// Two lines: one from the ledger, one that looks at it.
class Recalculation : public testing::Test {
protected:
    Recalculation() {
        desk.data.answer("SELECT * FROM D6830",
                         {"ID int", "A1 text", "A4 text", "A5 text", "A6 text", "B1 text",
                          "B4 text", "B5 text", "B6 text"},
                         {{"1", "a", "<null>", "", "fasc(期末,'1','2')", "", "<null>", "", ""},
                          {"2", "b", "<null>", "", "fd(期末,1)", "", "<null>", "", "fd(期末,2)"}});
        desk.data.answer("SELECT id,param", {"id int", "param text"}, {{"2", "2024-03"}});
        desk.data.answer("select ", {"a money"}, {{"5"}});
        form = std::make_unique<TF6671>(nullptr);
        form->FreeOnClose = false;
        Trecord record;
        record.set_code(671);
        form->InitForm(record);
    }
    void recalculate() {
        enter_event([this] { form->Act_Other.Execute(); });
    }
    tests::Desk desk;
    std::unique_ptr<TF6671> form;
};

TEST_F(Recalculation, tells_pass_and_line_until_all_is_done) {
    recalculate();
    ASSERT_EQ(desk.ui.reports.size(), 13U);
    EXPECT_EQ(desk.ui.reports[0], "重算 第 1 / 6 遍 0/12");
    EXPECT_EQ(desk.ui.reports[1], "重算 第 1 / 6 遍 1/12");
    EXPECT_EQ(desk.ui.reports[2], "重算 第 2 / 6 遍 2/12");
    EXPECT_EQ(desk.ui.reports[12], "重算 第 6 / 6 遍 12/12");
    EXPECT_TRUE(desk.ui.messages.empty());
    EXPECT_EQ(form->AdoQry_Main.RecNo(), 0);
}

TEST_F(Recalculation, stopped_it_keeps_the_passes_before) {
    desk.ui.stop_at_report = 4; // before the second line of the second pass
    recalculate();
    EXPECT_EQ(desk.ui.last_message(), "重算停在第 2 遍,前面各遍的结果已经保存!"
                                      "要得到完整的报表,请再执行一次重算。");
    ASSERT_EQ(desk.data.executed().size(), 2U);
    EXPECT_EQ(desk.data.executed()[0].batch, "UPDATE D6830 SET A4='5.00' WHERE ID=1;");
    EXPECT_EQ(desk.data.queries().back(), "SELECT * FROM D6830 WHERE G=1");
    EXPECT_FALSE(form->AdoQry_Main.Modified());
}

TEST_F(Recalculation, the_grids_hear_of_it_once) {
    struct Counter : DataSetListener {
        int resets = 0, rows = 0;
        void dataset_reset() override { ++resets; }
        void row_changed(int) override { ++rows; }
        void rows_inserted(int, int) override { ++rows; }
        void rows_removed(int, int) override { ++rows; }
        void cursor_moved(int) override {}
        void dataset_gone() override {}
    } counter;
    form->AdoQry_Main.add_listener(&counter);
    recalculate();
    form->AdoQry_Main.remove_listener(&counter);
    EXPECT_EQ(counter.resets, 1);
    EXPECT_EQ(counter.rows, 0);
}

} // namespace
} // namespace module

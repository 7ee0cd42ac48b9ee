// Grids: cursor, marks, columns, sums, finding, a million rows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

#include "desktop/grid/digit_boxes.h"
#include "desktop/theme/amount_text.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/forms.h"

namespace tests {
namespace {

QTableView* table_of(Desk& desk) { return desk.window().findChild<QTableView*>("grid"); }

void click(QTableView& table, int row, int column, Qt::KeyboardModifiers modifiers = {}) {
    const QRect cell = table.visualRect(table.model()->index(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers, cell.center());
}

TEST(Grid, a_click_moves_the_cursor_of_the_dataset) {
    Desk desk;
    auto* form = new TListForm(38);
    form->Show();
    desk.settle();
    click(*table_of(desk), 5, 2);
    EXPECT_EQ(form->Heads.RecNo(), 5);
    EXPECT_EQ(form->DBGridEh.column(), 2);
}

TEST(Grid, rows_are_marked_with_control_and_shift) {
    Desk desk;
    auto* form = new TListForm(38);
    form->Show();
    desk.settle();
    QTableView& table = *table_of(desk);
    click(table, 2, 0);
    click(table, 4, 0, Qt::ControlModifier);
    EXPECT_EQ(form->DBGridEh.selected_rows(), (std::vector<int>{2, 4}));
    click(table, 6, 0, Qt::ShiftModifier);
    EXPECT_EQ(form->DBGridEh.selected_rows(), (std::vector<int>{4, 5, 6}));
    click(table, 1, 0);
    EXPECT_EQ(form->DBGridEh.selected_rows(), std::vector<int>{1});
}

TEST(Grid, a_click_on_a_title_sorts_and_a_second_one_turns_the_order) {
    Desk desk;
    auto* form = new TListForm(9);
    form->Show();
    desk.settle();
    auto* header = table_of(desk)->horizontalHeader();
    const QPoint title(header->sectionViewportPosition(2) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    EXPECT_EQ(form->Heads.sorted_by(), "PZZ_H");
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    desk.settle();
    EXPECT_TRUE(form->Heads.sorted_descending());
    EXPECT_EQ(form->Heads.text_at(0, 2), "9");
}

TEST(Grid, widths_and_order_of_columns_are_remembered) {
    Desk desk;
    auto* form = new TListForm(9);
    form->Show();
    desk.settle();
    auto* header = table_of(desk)->horizontalHeader();
    header->resizeSection(0, 133);
    header->moveSection(header->visualIndex(2), 0);
    desk.settle();
    form->Close();
    host::release_closed_forms();
    desk.settle();
    (new TListForm(9))->Show();
    desk.settle();
    auto* again = table_of(desk)->horizontalHeader();
    EXPECT_EQ(again->sectionSize(0), 133);
    EXPECT_EQ(again->logicalIndex(0), 2);
}

TEST(Grid, the_row_is_found_as_it_is_typed) {
    Desk desk;
    auto* form = new TListForm(38);
    form->Show();
    desk.settle();
    click(*table_of(desk), 0, 2);
    desk.keys({"2", "7"});
    EXPECT_EQ(form->Heads.text_at(form->Heads.RecNo(), 2), "27");
}

TEST(Grid, the_marked_rows_are_copied_as_text) {
    Desk desk;
    auto* form = new TListForm(3);
    form->Show();
    desk.settle();
    click(*table_of(desk), 1, 0);
    desk.keys({"Ctrl+C"});
    const QString text = QApplication::clipboard()->text();
    EXPECT_TRUE(text.startsWith("期间\t凭证字\t号\t")) << text.toStdString();
    // Plain digits: the gaps between the thousands are paint.
    EXPECT_TRUE(text.contains("1234567.89")) << text.toStdString();
}

TEST(Grid, ruled_boxes_hold_nine_digits_before_the_point) {
    EXPECT_TRUE(desktop::digit_boxes::fits("123456789.99"));
    EXPECT_FALSE(desktop::digit_boxes::fits("1234567890.00"));
    EXPECT_TRUE(desktop::digit_boxes::fits("-12345678.00"));
    EXPECT_FALSE(desktop::digit_boxes::fits("-123456789.00"));
}

TEST(Grid, texts_are_told_from_amounts) {
    EXPECT_TRUE(desktop::looks_like_amount("-0.07"));
    EXPECT_FALSE(desktop::looks_like_amount("记-39"));
    EXPECT_FALSE(desktop::looks_like_amount("2016-06-28"));
    EXPECT_TRUE(desktop::is_zero_amount("0.00"));
    EXPECT_FALSE(desktop::is_zero_amount("0.10"));
}

TEST(Grid, a_million_rows_are_on_the_screen_in_two_seconds) {
    Desk desk;
    auto* form = new TListForm(0);
    form->Heads.DisableControls();
    {
        const auto loader = form->Heads.loader();
        std::vector<host::ColumnDescription> columns;
        for (const auto& field : form->Heads.Fields())
            columns.push_back({field->FieldName, field->Type, field->Size, 2});
        loader->columns(columns);
        std::vector<host::CellView> cells(columns.size());
        for (auto& cell : cells) cell.null = false;
        cells[0].text = "2016-06";
        cells[1].text = "记";
        cells[3].text = "应收帐款";
        for (int i = 1; i <= 1'000'000; ++i) {
            cells[2].integer = i;
            cells[4].integer = 12'345'500;
            cells[8].integer = 1;
            loader->row(cells);
        }
        loader->commit();
    }
    form->Heads.EnableControls();
    QElapsedTimer timer;
    timer.start();
    form->Show();
    desk.settle();
    const QImage picture = desk.picture();
    const auto shown = timer.restart();
    form->DBGridEh.set_row(999'999);
    desk.settle();
    desk.picture();
    const auto jumped = timer.elapsed();
    RecordProperty("shown_ms", static_cast<int>(shown));
    RecordProperty("jumped_ms", static_cast<int>(jumped));
    std::printf("a million rows: shown %d ms, to the end %d ms\n", static_cast<int>(shown),
                static_cast<int>(jumped));
    ASSERT_EQ(form->Heads.RecordCount(), 1'000'000);
    EXPECT_LT(shown, 2000);
    EXPECT_LT(jumped, 2000);
}

} // namespace
} // namespace tests

// A statement on the desktop: its two grids take turns, its formulas are typed in place.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/contract/U_glo.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/support/module_library.h"

namespace tests {
namespace {

host::Trecord menu_pick(int code) {
    host::Trecord record;
    record.set_code(code);
    return record;
}

const std::string cash = "fasc(期末,'1001','1009')";

struct StatementDesk : Desk {
    StatementDesk()
        : Desk([](int code) { module_entry()(menu_pick(code), nullptr); }, "2024-03-15") {
        data.answer("SELECT * FROM D6830 WHERE G=",
                    {"ID int", "A1 text", "A2 text", "A3 text", "A4 text", "A5 text", "A6 text",
                     "B1 text", "B2 text", "B3 text", "B4 text", "B5 text", "B6 text"},
                    {{"1", "流动资产：", "", "<null>", "<null>", "", "", "流动负债：", "", "<null>",
                      "<null>", "", ""},
                     {"2", " 货币资金", "1", "605712.62", "644591.29", "1", cash, " 短期借款", "68",
                      "300000.00", "-300.00", "1", "2"},
                     {"3", " 短期投资", "2", "0.00", "0.00", "1", "2", " 应付票据", "69", "0.00",
                      "0.00", "1", "2"},
                     {"4", "  资产总计", "67", "1.00", "1.00", "", "",
                      "  负债和所有者权益（或股东权益）总计", "135", "1.00", "1.00", "", ""}});
        data.answer("SELECT id,param", {"id int", "param text"}, {{"2", "2024-03"}});
        data.answer("select ", {"a money"}, {{"12.5"}});
        keys({"Ctrl+G", "6", "7", "1", "Enter"});
        form = host::the_host().active;
        settle();
    }
    QTableView* grid_in_front() {
        QTableView* front = nullptr;
        for (QTableView* table : window().findChildren<QTableView*>("grid"))
            if (table->isVisible()) front = table;
        return front;
    }
    void choose(const QString& caption) {
        for (auto* button : window().findChildren<QRadioButton*>())
            if (button->text() == caption) QTest::mouseClick(button, Qt::LeftButton);
        settle();
    }
    void click_cell(int row, int column) {
        QTableView& table = *grid_in_front();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.model()->index(row, column)).center());
        settle();
    }
    bool shows(const std::string& text) {
        for (auto* label : window().findChildren<QLabel*>())
            if (label->isVisible() && label->text() == desktop::qt(text)) return true;
        return false;
    }
    host::TForm* form = nullptr;
};

TEST(Statement, amounts_and_formulas_take_turns_in_the_same_place) {
    StatementDesk desk;
    ASSERT_NE(desk.form, nullptr);
    desk.keep("671");
    QTableView* amounts = desk.grid_in_front();
    ASSERT_NE(amounts, nullptr);
    const QRect place(amounts->mapTo(&desk.window(), QPoint()), amounts->size());
    EXPECT_GT(place.height(), desk.window().height() * 2 / 3);
    desk.choose(QStringLiteral("显示公式"));
    desk.keep("671_formulas");
    QTableView* formulas = desk.grid_in_front();
    EXPECT_NE(formulas, amounts);
    EXPECT_FALSE(amounts->isVisible());
    const QRect other(formulas->mapTo(&desk.window(), QPoint()), formulas->size());
    EXPECT_EQ(other.top(), place.top());
    EXPECT_EQ(other.width(), place.width());
}

TEST(Statement, the_formula_of_the_cell_under_the_hand_is_shown) {
    StatementDesk desk;
    desk.click_cell(1, 3);
    EXPECT_TRUE(desk.shows(cash));
    EXPECT_TRUE(desk.shows("D2"));
    desk.keys({"Left", "Left"});
    desk.settle();
    EXPECT_FALSE(desk.shows("D2"));
}

TEST(Statement, the_line_about_a_cell_keeps_its_places_where_there_is_no_formula) {
    StatementDesk desk;
    auto* formula = desk.window().findChild<QLabel*>("LA4");
    ASSERT_NE(formula, nullptr);
    EXPECT_EQ(formula->font().families().front(), "Noto Sans Mono CJK SC");
    desk.click_cell(1, 3);
    const int left = formula->mapTo(&desk.window(), QPoint()).x();
    desk.click_cell(1, 0);
    EXPECT_FALSE(desk.shows(cash));
    EXPECT_EQ(formula->mapTo(&desk.window(), QPoint()).x(), left);
    EXPECT_TRUE(formula->isVisible());
}

TEST(Statement, a_long_formula_leaves_the_window_its_width) {
    StatementDesk desk;
    desk.choose(QStringLiteral("显示公式"));
    const int width = desk.window().width();
    desk.click_cell(1, 3);
    desk.type(std::string(400, '1'));
    desk.keys({"Enter"});
    desk.settle();
    EXPECT_EQ(desk.window().width(), width);
}

TEST(Statement, a_formula_is_typed_in_place_reckoned_and_saved_by_keys) {
    StatementDesk desk;
    desk.choose(QStringLiteral("显示公式"));
    desk.click_cell(1, 3);
    desk.type("7+8");
    desk.keys({"Enter", "F2"});
    ASSERT_EQ(desk.data.executed().size(), 2u);
    EXPECT_EQ(desk.data.executed()[0].batch, "UPDATE D6830 SET A6='7+8' WHERE ID=2;");
    desk.keys({"F9"});
    EXPECT_GT(desk.data.executed().size(), 2u);
    EXPECT_EQ(desk.messages, std::vector<std::string>());
}

TEST(Statement, its_lines_and_columns_stay_where_the_form_has_them) {
    StatementDesk desk;
    QTableView& table = *desk.grid_in_front();
    QHeaderView& header = *table.horizontalHeader();
    EXPECT_FALSE(header.sectionsMovable());
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(3) + 20, header.height() - 8));
    desk.settle();
    auto& grid = *dynamic_cast<host::TDBGridEh*>(desk.form->FindComponent("DBGridEh"));
    EXPECT_EQ(grid.DataSet->sorted_by(), "");
}

TEST(Statement, rows_are_made_higher_with_the_mouse) {
    StatementDesk desk;
    QTableView& table = *desk.grid_in_front();
    QHeaderView& numbers = *table.verticalHeader();
    const int before = table.rowHeight(1);
    const int edge = numbers.sectionViewportPosition(1) + before - 1;
    QTest::mousePress(numbers.viewport(), Qt::LeftButton, {}, QPoint(10, edge));
    QTest::mouseMove(numbers.viewport(), QPoint(10, edge + 30));
    QTest::mouseRelease(numbers.viewport(), Qt::LeftButton, {}, QPoint(10, edge + 30));
    EXPECT_EQ(table.rowHeight(1), before + 30);
}

TEST(Statement, a_darker_line_parts_the_two_halves_and_a_heading_keeps_a_white_ground) {
    StatementDesk desk;
    QTableView& table = *desk.grid_in_front();
    const QImage grid = table.viewport()->grab().toImage();
    const auto edge_of = [&](int row, int column) {
        const QRect cell = table.visualRect(table.model()->index(row, column));
        return grid.pixelColor(cell.right(), cell.center().y());
    };
    EXPECT_EQ(edge_of(1, 3), desktop::token::rule_3); // 资产 ends
    EXPECT_EQ(edge_of(1, 2), desktop::token::rule_1);
    desk.click_cell(1, 0);
    const QRect heading = table.visualRect(table.model()->index(0, 4));
    EXPECT_EQ(table.viewport()->grab().toImage().pixelColor(heading.right() - 3, heading.top() + 3),
              desktop::token::paper_0);
}

TEST(Statement, the_formulas_too_are_parted_into_halves) {
    StatementDesk desk;
    desk.choose(QStringLiteral("显示公式"));
    QTableView& table = *desk.grid_in_front();
    const QImage grid = table.viewport()->grab().toImage();
    const QRect cell = table.visualRect(table.model()->index(1, 3));
    EXPECT_EQ(grid.pixelColor(cell.right(), cell.center().y()), desktop::token::rule_3);
}

TEST(Statement, the_amounts_of_a_grand_total_stand_out) {
    StatementDesk desk;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(desk.form->FindComponent("DBGridEh"));
    EXPECT_TRUE(grid.cell_params(3, 2).Bold);
    EXPECT_TRUE(grid.cell_params(3, 7).Bold);
    EXPECT_FALSE(grid.cell_params(3, 0).Bold);
    EXPECT_FALSE(grid.cell_params(2, 2).Bold);
}

TEST(Statement, the_formula_stands_on_a_band_of_its_own_above_the_lines) {
    StatementDesk desk;
    desk.click_cell(1, 3);
    QTableView& table = *desk.grid_in_front();
    const QPoint above = table.mapTo(&desk.window(), QPoint(300, -6));
    EXPECT_EQ(desk.picture().pixelColor(above), desktop::token::paper_0);
}

} // namespace
} // namespace tests

// The three statements of a worked month, to the cent, and what the books keep of them.
#include "tests/forms/statements/worked_month.h"

namespace tests {
namespace {

TEST_F(WorkedMonth, the_balance_sheet_comes_out_to_the_cent) {
    recalculate(671);
    const Figures wanted = expected("balance_sheet");
    EXPECT_EQ(wanted.size(), 59U);
    EXPECT_EQ(of_the_lines(balance_sheet(), wanted), wanted);
}

TEST_F(WorkedMonth, balances_on_the_other_side_are_moved_by_formulas_of_ones_own) {
    struct Line {
        const char* number;
        const char* field;
        const char* formula; // 期 stands for the column's word
    };
    const Line lines[] = {
        {"6", "A", "dbo.fjf(期,'1131','1131')+dbo.fjf(期,'2131','2131')-fasc(期,'1141','1141')"},
        {"8", "A", "dbo.fjf(期,'2121','2121')+dbo.fjf(期,'1151','1151')"},
        {"70", "B", "dbo.fdf(期,'2121','2121')+dbo.fdf(期,'1151','1151')"},
        {"71", "B", "dbo.fdf(期,'1131','1131')+dbo.fdf(期,'2131','2131')"},
    };
    const auto of = [](std::string formula, const std::string& word) {
        for (std::size_t at; (at = formula.find("期,")) != std::string::npos;)
            formula.replace(at, std::string("期").size(), word);
        return formula;
    };
    anna.open(671);
    anna.check("rb2");
    for (const Line& line : lines) {
        const std::string half = line.field;
        const Rows rows = anna.rows("DBGridEh1");
        for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
            if (rows[static_cast<std::size_t>(row)].at(half + "2") != line.number) continue;
            anna.cell(row, half + "5", of(line.formula, "年初"), "DBGridEh1");
            anna.cell(row, half + "6", of(line.formula, "期末"), "DBGridEh1");
        }
    }
    anna.click("Act_Other");
    anna.check("rb1");
    const Figures wanted = expected("balance_sheet_reclassified");
    EXPECT_EQ(wanted.size(), 9U);
    EXPECT_EQ(of_the_lines(balance_sheet(), wanted), wanted);
}

TEST_F(WorkedMonth, the_income_statement_comes_out_to_the_cent) {
    recalculate(673);
    const Figures wanted = expected("income_statement");
    EXPECT_EQ(wanted.size(), 16U);
    EXPECT_EQ(of_the_lines(shown({{"A2", {{"A3", "本月"}, {"A4", "本年累计"}}}}), wanted), wanted);
}

TEST_F(WorkedMonth, the_cash_flow_statement_comes_out_to_the_cent) {
    recalculate(672);
    const Figures wanted = expected("cash_flow");
    EXPECT_EQ(wanted.size(), 31U);
    EXPECT_EQ(of_the_lines(shown({{"A2", {{"A3", "本年累计"}, {"A4", "本月"}}}}), wanted), wanted);
}

TEST_F(WorkedMonth, every_layout_of_the_balance_sheet_balances) {
    struct Total {
        const char* layout;
        const char* assets;
        const char* other_side;
    };
    // Line numbers of the two totals.
    const Total totals[] = {{"样式1", "67", "135"}, {"样式2", "30", "53"}, {"样式3", "34", "72"}};
    anna.open(671);
    for (const Total& total : totals) {
        anna.set("CB1", total.layout);
        anna.click("Act_Other");
        const Figures figures = balance_sheet();
        for (const char* column : {"年初", "期末"})
            EXPECT_EQ(figures.at(total.assets).at(column), figures.at(total.other_side).at(column))
                << total.layout << column;
        EXPECT_EQ(figures.at(total.assets).at("年初"), "4944212.35") << total.layout;
    }
}

TEST_F(WorkedMonth, every_layout_of_the_income_statement_ends_with_the_same_profit) {
    anna.open(673);
    for (const auto& [layout, line] :
         {std::pair{"样式1", "30"}, {"样式2", "32"}, {"样式3", "24"}}) {
        anna.set("CB1", layout);
        anna.click("Act_Other");
        EXPECT_EQ(shown({{"A2", {{"A4", "本年累计"}}}}).at(line).at("本年累计"), "9250.31");
    }
}

} // namespace
} // namespace tests

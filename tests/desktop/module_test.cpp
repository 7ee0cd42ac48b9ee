// The module's own forms under a person's hands, on books known by heart.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QTableView>

#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/contract/U_glo.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/forms/ledgers/ledger_answers.h"
#include "tests/forms/small_books.h"
#include "tests/support/module_library.h"

namespace tests {
namespace {

host::Trecord menu_pick(int code) {
    host::Trecord record;
    record.set_code(code);
    return record;
}

struct BooksDesk : Desk {
    BooksDesk() : Desk([](int code) { module_entry()(menu_pick(code), nullptr); }, "2024-03-15") {
        answer_code_tables();
        answer_as_small_books(data);
        data.answer("SELECT param,(SELECT COUNT(*)", {"param text", "I int", "J int"},
                    {{"2024-03", "5", "3"}});
        data.answer("SELECT VALUE FROM SYS_SETTING WHERE NAME='mode'", {"VALUE text"}, {});
        data.answer("select * from (SELECT D6602.KM_ID",
                    {"KM_ID text", "KM_NAME text", "OID text", "KM_J int", "B1 money", "B2 money",
                     "C1 money", "C2 money", "D1 money", "D2 money", "BB1 money", "BB2 money",
                     "CC1 money", "CC2 money", "DD1 money", "DD2 money"},
                    {{"1001", "现金", "Z", "1", "0", "0", "585", "0", "585", "0", "0", "0", "585",
                      "0", "585", "0"},
                     {"1131", "应收帐款", "Z", "1", "0", "0", "0", "585", "0", "585", "0", "0", "0",
                      "585", "0", "585"},
                     {"113101", "应收帐款-东方", "1131", "2", "0", "0", "0", "585", "-3", "585",
                      "0", "0", "0", "0", "0", "0"}});
        host::G_UserId = "anna";
        host::G_UserName = "李敏";
    }
    void answer_opening_figures() {
        answer_current_period(data, "");
        data.answer("SELECT * FROM V6801 WHERE ISEND=1 order by km_id",
                    {"KM_ID text", "KM_NAME2 text", "FX text", "BEGIN1 money", "BEGIN2 money",
                     "BEGIN3 money", "BEGIN4 money", "BEGIN5 money"},
                    {{"1001", "现金", "借", "80", "30", "10", "100", "0"},
                     {"2101", "短期借款", "贷", "80", "10", "30", "100", "0"}});
        data.answer("SELECT KM_ID, KM_NAME, CASE FX",
                    {"KM_ID text", "KM_NAME text", "B1 money", "B2 money", "C1 money", "C2 money",
                     "D1 money", "D2 money"},
                    {{"1001", "现金", "80", "0", "30", "10", "100", "0"},
                     {"2101", "短期借款", "0", "80", "10", "30", "0", "100"}});
    }
    void answer_frame_period(const std::string& period) {
        data.answer("SELECT ID,PARAM FROM D6600", {"ID int", "PARAM text"},
                    {{"1", "2024-01"}, {"2", period}});
    }
    // What the line at the bottom says of company and period.
    std::string bottom_line() {
        for (const QWidget* part : window().findChildren<QWidget*>()) {
            if (part->accessibleName().contains("20")) return part->accessibleName().toStdString();
        }
        return "";
    }
    void answer_code_tables() {
        const std::string chart = "SELECT KM_ID,KM_NAME, OID  FROM D6801 where km_fl=1";
        data.answer(chart, {"KM_ID text", "KM_NAME text", "OID text"},
                    {{"1001", "现金", "Z"}, {"1002", "银行存款", "Z"}, {"100201", "工行", "1002"}});
        data.answer("select * From d6802", {"PZZ text", "PZZ_PRINT text", "T int", "PYM text"},
                    {{"记", "记帐凭证", "1", "JZPZ"}});
        data.answer("SELECT * FROM D6820", {"ID text", "XJLL text", "IO text", "OID text"},
                    {{"1", "经营活动产生的现金流量", "流入", "ZZZ"},
                     {"11", "经营活动现金流入", "流入", "1"}});
        data.answer("select * From d6803", {"GUID text", "ZY text", "PYM text"},
                    {{"G1", "收货款", "SHK"}});
        data.answer("SELECT D6804.*, V6801.KM_NAME_NEW,CASE SZLB_CLASS",
                    {"SZLB_CLASS int", "SZLB text", "SZLB_NAME text", "PYM text", "KM_ID text",
                     "T bit", "KM_NAME_NEW text", "SZLB_CLASSN text"},
                    {{"0", "01", "存款利息", "CKLX", "550302", "1", "财务费用-利息收入",
                      "收入类别"}});
        data.answer("select * from D6804 where SZLB=", {"SZLB text"}, {});
        data.answer("SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID",
                    {"KM_ID text", "KM_NAME2 text"}, {});
        data.answer("SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID='550214'",
                    {"KM_ID text", "KM_NAME_NEW text"},
                    {{"550214", "管理费用-计提的存货跌价准备"}});
    }
    std::string active() const {
        const host::TForm* form = host::the_host().active;
        return form ? form->ClassName() : "";
    }
};

void answer_balance(BooksDesk& desk, const std::string& account) {
    desk.data.answer("SELECT DBO.FASC(0,'2024-03','" + account + "','" + account + "') AS A",
                     {"A money"}, {{"100"}});
}

TEST(ModuleForms, a_voucher_is_typed_from_the_menu_to_the_books_without_the_mouse) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    ASSERT_EQ(desk.active(), "TF6661");
    desk.keep("661");
    desk.keys({"Insert"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    for (int i = 0; i < 5 && form.ActiveControl() != &grid; ++i) desk.keys({"Tab"});
    ASSERT_EQ(form.ActiveControl(), &grid);
    desk.type("收货款");
    desk.keys({"Enter"});
    desk.type("1001");
    desk.keep("661_1_suggestions");
    desk.keys({"Enter"});
    desk.type("100");
    desk.keys({"Enter", "Enter"});
    desk.type("收货款");
    desk.keys({"Enter"});
    desk.type("qtys"); // 其他应收款 by its initials
    desk.keys({"Enter", "Enter"});
    desk.type("100.00");
    desk.keep("661_1");
    desk.keys({"F2"});
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_EQ(desk.data.executed().size(), 1u);
    const std::string& batch = desk.data.executed().back().batch;
    EXPECT_NE(batch.find("INSERT INTO D6601 "), std::string::npos) << batch;
    EXPECT_NE(batch.find("'收货款','1001'"), std::string::npos) << batch;
    EXPECT_NE(batch.find("'收货款','1133'"), std::string::npos) << batch;
}

TEST(ModuleForms, the_next_voucher_begins_at_the_summary_of_its_first_line) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter", "Insert"});
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    const auto type_voucher = [&](const std::string& summary) {
        for (int i = 0; i < 5 && form.ActiveControl() != &grid; ++i) desk.keys({"Enter"});
        desk.type(summary);
        desk.keys({"Enter"});
        desk.type("1001");
        desk.keys({"Enter"});
        desk.type("100");
        desk.keys({"Enter", "Enter", "Enter"}); // over the credit side; the summary is repeated
        desk.type("1133");
        desk.keys({"Enter", "Enter"});
        desk.type("100");
        desk.keys({"F2"});
    };
    type_voucher("收货款");
    type_voucher("还借款");
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_EQ(desk.data.executed().size(), 2u);
    const std::string& second = desk.data.executed().back().batch;
    EXPECT_NE(second.find("'还借款','1001'"), std::string::npos) << second;
    EXPECT_NE(second.find("'还借款','1133'"), std::string::npos) << second;
}

TEST(ModuleForms, a_summary_stays_as_typed_and_an_account_is_chosen_from_the_list) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter", "Insert"});
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    for (int i = 0; i < 5 && form.ActiveControl() != &grid; ++i) desk.keys({"Tab"});
    desk.type("收"); // 收货款 is offered
    desk.keys({"Enter"});
    EXPECT_EQ(grid.DataSet->FieldByName("ZY").AsText(), "收");
    desk.type("ys"); // 应收帐款, then 其他应收款
    desk.keys({"Down", "Enter"});
    EXPECT_EQ(grid.DataSet->FieldByName("KM_ID").AsText(), "1133");
    desk.type("585");
    desk.keys({"Enter", "Enter"});
    EXPECT_EQ(grid.DataSet->Sum("J"), host::Amount::from_whole(585));
    desk.type("收");
    desk.keys({"Down", "Enter"});
    EXPECT_EQ(grid.DataSet->FieldByName("ZY").AsText(), "收货款");
    EXPECT_EQ(desk.messages, std::vector<std::string>());
}

TEST(ModuleForms, a_template_is_applied_and_its_cash_allocated_without_the_mouse) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter", "Insert"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    desk.when_modal([&] {
        desk.settle();
        EXPECT_EQ(desk.active(), "TF6661_4");
        desk.type("提");
        desk.keep("661_4");
        desk.keys({"F2"});
    });
    desk.keys({"F7"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    desk.when_modal([&] {
        desk.settle();
        EXPECT_EQ(desk.active(), "TF6661_5");
        desk.type("500");
        desk.keys({"Enter", "Enter"});
        desk.keys({"Enter"}); // over the inflow of the second item to its outflow
        desk.type("500");
        desk.keep("661_5");
        desk.keys({"F2"});
    });
    desk.keys({"F8", "F2"});
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_EQ(desk.data.executed().size(), 1u);
    const std::string row = "INSERT INTO D6601B (NOID, D6820ID, J, D) VALUES ('2024-03记009',";
    EXPECT_TRUE(desk.data.executed().back().batch.ends_with(
        "delete from d6601b where noid='2024-03记009';" + row + "'1101','500','0');" + row +
        "'1109','0','500');"))
        << desk.data.executed().back().batch;
}

TEST(ModuleForms, an_unfinished_voucher_is_refused_and_the_focus_stays) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter", "Insert"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    for (int i = 0; i < 5 && form.ActiveControl() != &grid; ++i) desk.keys({"Tab"});
    desk.type("收货款");
    desk.keys({"Enter"});
    desk.type("1001");
    desk.keys({"Enter"});
    desk.type("100");
    desk.keys({"Enter", "F2"});
    EXPECT_EQ(desk.messages,
              std::vector<std::string>{"必须有两行以上完整地填写科目，及借或贷金额!"});
    EXPECT_EQ(form.ActiveControl(), &grid);
    EXPECT_TRUE(desk.data.executed().empty());
}

TEST(ModuleForms, every_function_of_the_first_books_is_drawn) {
    BooksDesk desk;
    for (int code : {661, 662, 681, 682, 683, 687, 691}) {
        const std::string text = std::to_string(code);
        desk.keys({"Ctrl+G", text.substr(0, 1), text.substr(1, 1), text.substr(2, 1), "Enter"});
        EXPECT_NE(host::the_host().active, nullptr) << code;
        desk.keep(text);
    }
    EXPECT_EQ(host::the_host().forms.size(), 7u);
}

TEST(ModuleForms, a_dialog_is_as_wide_as_its_longest_text) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "8", "2", "Enter"});
    int checked = 0;
    desk.when_modal([&] {
        desk.settle();
        for (auto* box : QApplication::activeModalWidget()->findChildren<QCheckBox*>()) {
            EXPECT_GE(box->width(), box->sizeHint().width()) << desktop::utf8(box->text());
            ++checked;
        }
        desk.keys({"Esc"});
    });
    desk.keys({"Insert"});
    EXPECT_EQ(checked, 1);
}

TEST(ModuleForms, a_category_is_entered_by_keys_alone_and_shows_its_accounts_full_name) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "8", "7", "Enter"});
    int names = 0;
    desk.when_modal([&] {
        desk.keys({"Down", "Down", "Tab", "2", "1", "Tab"});
        desk.type("跌价");
        desk.keys({"Tab", "5", "5", "0", "2", "1", "4", "Tab", "Space"});
        for (auto* label : QApplication::activeModalWidget()->findChildren<QLabel*>()) {
            if (desktop::utf8(label->text()) != "管理费用-计提的存货跌价准备") continue;
            EXPECT_GE(label->width(), label->sizeHint().width());
            ++names;
        }
        desk.keep("687_1");
        desk.keys({"F2"});
    });
    desk.keys({"Insert"});
    EXPECT_EQ(names, 1);
    EXPECT_EQ(desk.messages, std::vector<std::string>{});
    ASSERT_EQ(desk.data.executed().size(), 1U);
    EXPECT_EQ(desk.data.executed()[0].batch,
              "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME, PYM,KM_ID,  T) ValueS(1,'21','跌价',"
              "'DJ','550214',1)");
    EXPECT_EQ(desk.active(), "TF6687");
}

TEST(ModuleForms, posting_stands_over_the_frame_until_it_is_left) {
    BooksDesk desk;
    bool stood = false;
    desk.when_modal([&] {
        desk.settle();
        stood = desk.active() == "TF6663";
        desk.keep("663");
        desk.keys({"Esc"});
    });
    desk.keys({"Ctrl+G", "6", "6", "3", "Enter"});
    EXPECT_TRUE(stood);
    EXPECT_TRUE(host::the_host().modal.empty());
}

TEST(ModuleForms, the_bottom_line_shows_the_period_that_a_closing_leads_to) {
    BooksDesk desk;
    desk.answer_frame_period("2024-03");
    desk.data.answer("SELECT param,(SELECT COUNT(*)", {"param text", "I int", "J int"},
                     {{"2024-03", "0", "0"}});
    desk.when_modal([&] {
        desk.settle();
        desk.keep("668");
        desk.answer_frame_period("2024-04");
        desk.keys({"F2", "Esc"});
    });
    desk.keys({"Ctrl+G", "6", "6", "8", "Enter"});
    EXPECT_EQ(desk.messages, std::vector<std::string>{"结帐完成!"});
    EXPECT_TRUE(desk.bottom_line().ends_with("2024-04")) << desk.bottom_line();
}

TEST(ModuleForms, opening_figures_are_typed_along_the_row_and_posted_by_key) {
    BooksDesk desk;
    desk.answer_opening_figures();
    desk.keys({"Ctrl+G", "6", "9", "9", "Enter"});
    ASSERT_EQ(desk.active(), "TF6699");
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    ASSERT_EQ(form.ActiveControl(), &grid);
    for (const char* figure : {"30", "10", "100", "0", "10", "30", "100"}) {
        desk.type(figure);
        desk.keys({"Enter"});
    }
    desk.keep("699");
    EXPECT_EQ(grid.cell_text(0, grid.column_index("BEGIN1")), "80.00");
    EXPECT_EQ(grid.cell_text(1, grid.column_index("BEGIN4")), "100.00");
    desk.keys({"F2"});
    desk.when_modal([&] {
        desk.settle();
        EXPECT_EQ(desk.active(), "TF6699_1");
        desk.keep("699_1");
        desk.when_modal([&] {
            desk.settle();
            EXPECT_EQ(desk.active(), "TF6699_2");
            desk.keep("699_2");
            desk.answer_frame_period("2024-03");
            desk.keys({"F2"});
        });
        desk.keys({"F2"});
    });
    desk.keys({"F7"});
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_FALSE(desk.data.executed().empty());
    EXPECT_EQ(desk.data.executed().back().log.key, "2024-03");
    EXPECT_TRUE(host::the_host().forms.empty()) << "the entry closes with the posting";
    EXPECT_TRUE(desk.bottom_line().ends_with("2024-03")) << desk.bottom_line();
}

TEST(ModuleForms, profit_is_carried_forward_without_the_mouse) {
    BooksDesk desk;
    desk.data.answer("select km_id,km_name from d6801 where   (km_id>'3141')",
                     {"km_id text", "km_name text"}, {{"314115", "未分配利润"}});
    desk.data.answer("SELECT KM_ID AS A1",
                     {"A1 text", "A2 text", "A3 text", "A4 text", "FX text", "E money"},
                     {{"5101", "主营业务收入", "3131", "本年利润", "贷", "0.00"}});
    desk.data.answer("SELECT DBO.FASC(0,'2024-03','5101','5101') AS A", {"A money"}, {{"1234.5"}});
    desk.data.answer("SELECT A1,A3,FX,DBO.FASC(0,'2024-03',A1,A1) AS E",
                     {"A1 text", "A3 text", "FX text", "E money"},
                     {{"5101", "3131", "贷", "1234.5"}});
    desk.data.answer("select km_name from d6801", {"km_name text"}, {{"未分配利润"}});
    desk.when_modal([&] {
        desk.settle();
        EXPECT_EQ(desk.active(), "TF6667");
        desk.keys({"Enter", "Enter"}); // date, summary
        desk.type("314115");
        desk.keys({"Enter"});
        desk.keep("667");
        desk.keys({"F2"});
        desk.keep("667_done");
        desk.keys({"Esc"});
    });
    desk.keys({"Ctrl+G", "6", "6", "7", "Enter"});
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_EQ(desk.data.executed().size(), 1u);
    EXPECT_TRUE(host::the_host().modal.empty());
}

TEST(ModuleForms, the_carry_forward_fits_into_a_small_window_with_all_it_says) {
    BooksDesk desk;
    std::vector<FakeData::Cells> accounts;
    for (int code = 5101; code < 5131; ++code) {
        const std::string text = std::to_string(code);
        accounts.push_back({text, "科目" + text, "3131", "本年利润", "贷", "0.00"});
        answer_balance(desk, text);
    }
    desk.data.answer("SELECT KM_ID AS A1",
                     {"A1 text", "A2 text", "A3 text", "A4 text", "FX text", "E money"}, accounts);
    for (const int height : {600, 520}) {
        desk.window().setMinimumHeight(height);
        desk.window().resize(960, height);
        desk.when_modal([&desk, height] {
            desk.settle();
            const QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_LE(dialog->height(), height);
            const QWidget* grid = dialog->findChild<QTableView*>("grid");
            ASSERT_NE(grid, nullptr);
            EXPECT_GE(grid->height(), desktop::token::header + 3 * desktop::token::grid_row);
            EXPECT_LT(grid->mapTo(dialog, QPoint(0, grid->height())).y(), height - 150)
                << "totals, two sentences and the buttons stand below";
            desk.keep("667_" + std::to_string(height));
            desk.keys({"Esc"});
        });
        desk.keys({"Ctrl+G", "6", "6", "7", "Enter"});
        EXPECT_TRUE(host::the_host().modal.empty());
    }
}

TEST(ModuleForms, a_voucher_dated_outside_its_period_says_so_and_moves_nothing) {
    BooksDesk desk;
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter", "Insert"});
    host::TForm& form = *host::the_host().active;
    auto& date = dynamic_cast<host::TDateEdit&>(*form.FindComponent("BDATE"));
    const auto place_of = [&desk](const char* name) {
        for (QWidget* widget : desk.window().findChildren<QWidget*>())
            if (widget->isVisible() && widget->accessibleName() == QString::fromUtf8(name))
                return widget->mapTo(&desk.window(), QPoint());
        return QPoint(-1, -1);
    };
    const QPoint title = place_of("记帐凭证"), day = place_of("BDATE");
    ASSERT_NE(title, QPoint(-1, -1));
    ASSERT_NE(day, QPoint(-1, -1));
    date.enter_text("2024-04-01");
    desk.settle();
    desk.keep("661_1_other_period");
    EXPECT_TRUE(dynamic_cast<host::TLabel&>(*form.FindComponent("DateHint")).Visible);
    EXPECT_EQ(place_of("记帐凭证"), title);
    EXPECT_EQ(place_of("BDATE"), day);
}

TEST(ModuleForms, the_trial_balance_asks_for_its_period_and_shows_it) {
    BooksDesk desk;
    bool asked = false;
    desk.when_modal([&] {
        desk.settle();
        asked = desk.active() == "TF6689F";
        desk.keep("689F");
        desk.keys({"F2"});
    });
    desk.keys({"Ctrl+G", "6", "8", "9", "Enter"});
    EXPECT_TRUE(asked);
    ASSERT_EQ(desk.active(), "TF6689");
    desk.keep("689");
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    EXPECT_EQ(grid.DataSet->RecordCount(), 3);
    EXPECT_EQ(grid.footer_text(grid.column_index("C1")), "585.00");
}

TEST(ModuleForms, accounts_of_a_ledger_are_chosen_while_typing_or_stay_as_typed) {
    BooksDesk desk;
    answer_detailed_ledger(desk.data);
    desk.data.answer("SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID",
                     {"KM_ID text", "KM_NAME2 text", "PYM text"},
                     {{"1001", "现金", "XJ"}, {"1131", "应收帐款", "YSZK"}});
    std::string first, last;
    desk.when_modal([&] {
        desk.settle();
        host::TForm& form = *host::the_host().active;
        auto& from = *dynamic_cast<host::TLinkEdit*>(form.FindComponent("KM1"));
        auto& to = *dynamic_cast<host::TLinkEdit*>(form.FindComponent("KM2"));
        for (int i = 0; i < 5 && form.ActiveControl() != &from; ++i) desk.keys({"Tab"});
        desk.type("ysz");
        desk.keep("685F_suggestions");
        desk.keys({"Down", "Enter", "Tab"});
        first = from.Text.get() + from.DisplayName.get();
        EXPECT_EQ(form.ActiveControl(), &to);
        desk.type("11");
        desk.keys({"F2"});
        last = to.Text;
    });
    desk.keys({"Ctrl+G", "6", "8", "5", "Enter"});
    EXPECT_EQ(first, "1131应收帐款");
    EXPECT_EQ(last, "11");
    EXPECT_EQ(desk.active(), "TF6685");
}

TEST(ModuleForms, a_balance_is_followed_to_its_voucher_and_back_without_the_mouse) {
    BooksDesk desk;
    answer_general_ledger(desk.data);
    answer_detailed_ledger(desk.data);
    desk.when_modal([&] { desk.keys({"F2"}); });
    desk.keys({"Ctrl+G", "6", "8", "6", "Enter"});
    ASSERT_EQ(desk.active(), "TF6686");
    desk.keep("686");
    desk.keys({"Tab", "Down", "Enter"});
    ASSERT_EQ(desk.active(), "TF6685");
    const host::TForm& ledger = *host::the_host().active;
    EXPECT_EQ(ledger.TabTitle(), "明细分类帐 1131");
    desk.keys({"Tab", "Down"}); // the account's only line
    desk.keep("685");
    desk.keys({"Enter"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    desk.keys({"Esc"});
    EXPECT_EQ(desk.active(), "TF6685");
    desk.keys({"Esc"});
    EXPECT_EQ(desk.active(), "TF6686");
    EXPECT_EQ(host::the_host().forms.size(), 1u);
    EXPECT_EQ(desk.messages, std::vector<std::string>());
}

TEST(ModuleForms, a_ledger_and_a_voucher_are_previewed_by_key) {
    BooksDesk desk;
    answer_detailed_ledger(desk.data);
    desk.data.answer("SELECT PZZ_PRINT FROM D6802", {"PZZ_PRINT text"}, {{"记帐凭证"}});
    const auto preview_as = [&](const std::string& picture) {
        desk.when_modal([&desk, picture] {
            EXPECT_EQ(QApplication::activeModalWidget()->objectName(), "preview");
            desk.keep(picture);
            desk.keys({"Esc"});
        });
        desk.keys({"Ctrl+Shift+P"});
        desk.settle();
    };
    desk.when_modal([&] { desk.keys({"F2"}); });
    desk.keys({"Ctrl+G", "6", "8", "5", "Enter"});
    ASSERT_EQ(desk.active(), "TF6685");
    preview_as("preview_685");
    desk.keys({"Ctrl+G", "6", "6", "1", "Enter"});
    ASSERT_EQ(desk.active(), "TF6661");
    preview_as("preview_661");
    desk.keys({"Down", "Enter"});
    ASSERT_EQ(desk.active(), "TF6661_1");
    preview_as("preview_661_1");
    EXPECT_TRUE(host::the_host().modal.empty());
}

} // namespace
} // namespace tests

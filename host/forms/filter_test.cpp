// Condition dialogs: dates, remembered values, OK and cancel.
#include "host/forms/Sys_Filter.h"

#include "host/contract/U_glo.h"
#include "host/forms/Base_Qry.h"
#include "host/forms/event_gate.h"
#include "host/values/errors.h"
#include "tests/support/fake_interface.h"

namespace host {

namespace {

class TF900F : public TFrm_Sys_Filter {
public:
    explicit TF900F(TForm* parent = nullptr) : TFrm_Sys_Filter(parent) {
        BindDayCount(BDATE, EDATE, titDATE);
        BindDateMenu(btn_dateset, BDATE, EDATE);
        Level.set(std::int64_t{1});
        Remember(Level);
        Remember(Posted);
        layout = Rows({Field("", BDATE), Field("", EDATE), Field("", Level), Control(Posted),
                       Buttons({&btn_ok, &btn_Cancel})});
    }
    const char* ClassName() const override { return "TF900F"; }
    TDateEdit BDATE{this, "BDATE", "凭证日期"}, EDATE{this, "EDATE", "至："};
    TLabel titDATE{this, "titDATE"};
    TButton btn_dateset{this, "btn_dateset", "时段选择"};
    TNumberEdit Level{this, "Level", "级别"};
    TCheckBox Posted{this, "Posted", "已过帐"};

    void btn_okClick() override {
        CheckDates(BDATE, EDATE);
        ResultText = DateCondition("D6601", BDATE.value(), EDATE.value());
        Description = " ●凭证日期:(" + BDATE.Text.get() + " 至 " + EDATE.Text.get() + ")";
        TFrm_Sys_Filter::btn_okClick();
    }
};

class TF900 : public TFrm_Base_Qry {
public:
    explicit TF900(TForm* parent = nullptr) : TFrm_Base_Qry(parent) {
        Caption = "明细";
        KeyField = "NOID";
        AddColumn("NOID", "号");
        AddAmountColumn("J", "借方");
        SumFields = "J";
        FreeOnClose = false;
    }
    const char* ClassName() const override { return "TF900"; }
    TF900F filter{this};

protected:
    TFrm_Sys_Filter* Filter() override { return &filter; }
};

struct Filter : ::testing::Test {
    void dates(TF900F& filter, const char* first, const char* last) {
        filter.BDATE.Text = first;
        filter.EDATE.Text = last;
    }
    static Trecord record() {
        Trecord pick;
        pick.set_code(900);
        return pick;
    }
    tests::Desk desk;
};

} // namespace

TEST_F(Filter, the_last_day_counts_in_full) {
    TF900F filter;
    dates(filter, "2024-03-01", "2024-03-31");
    EXPECT_TRUE(filter.Preset());
    EXPECT_EQ(filter.ResultText, "(D6601.BDATE>='2024-03-01') AND (D6601.BDATE<'2024-04-01')");
    EXPECT_EQ(filter.titDATE.Caption.get(), "(31天)");
    dates(filter, "2024-03-05", "2024-03-05");
    EXPECT_EQ(filter.titDATE.Caption.get(), "(1天)");
    EXPECT_TRUE(filter.Preset());
    EXPECT_EQ(filter.ResultText, "(D6601.BDATE>='2024-03-05') AND (D6601.BDATE<'2024-03-06')");
}

TEST_F(Filter, a_start_after_the_end_keeps_the_dialog_open) {
    TF900F filter;
    dates(filter, "2024-03-02", "2024-03-01");
    desk.ui.inside.push_back([&](TForm& form) {
        tests::press(form, "F2");
        EXPECT_EQ(form.ModalResult.get(), 0);
        EXPECT_TRUE(filter.BDATE.focused());
        filter.EDATE.Text = "2024-03-02";
        tests::press(form, "F2");
        EXPECT_EQ(form.ModalResult.get(), mrOk);
    });
    EXPECT_EQ(filter.ShowModal(), mrOk);
    EXPECT_EQ(desk.ui.messages, std::vector<std::string>{"开始日期不能大于结束日期!"});
}

TEST_F(Filter, the_menu_of_ranges_sets_both_dates) {
    TF900F filter;
    desk.ui.popup_item = "setdate04";
    filter.btn_dateset.Click();
    EXPECT_EQ(filter.BDATE.Text.get(), "2024-02-01");
    EXPECT_EQ(filter.EDATE.Text.get(), "2024-02-29");
    filter.setdate06click();
    EXPECT_EQ(filter.EDATE.Text.get(), "2024-12-31");
}

TEST_F(Filter, what_was_chosen_is_there_again_for_the_same_company_only) {
    {
        TF900F filter;
        dates(filter, "2024-03-01", "2024-03-31");
        filter.Level.set(std::int64_t{3});
        filter.Posted.Checked = true;
        EXPECT_TRUE(filter.Preset());
    }
    TF900F again;
    EXPECT_EQ(again.Level.as_integer(), 3);
    EXPECT_TRUE(again.Posted.Checked);
    G_CoName = "另一家";
    TF900F other;
    EXPECT_EQ(other.Level.as_integer(), 1);
    EXPECT_FALSE(other.Posted.Checked);
}

TEST_F(Filter, the_periods_of_the_books_are_read) {
    desk.data.answer("SELECT param,(SELECT param", {"param text", "fqj text"},
                     {{"2024-03", "2024-01"}});
    TF900F filter;
    filter.ReadPeriods();
    EXPECT_EQ(filter.CurrentPeriod, "2024-03");
    EXPECT_EQ(filter.FirstPeriod, "2024-01");
}

TEST_F(Filter, a_query_without_conditions_asks_for_them) {
    TF900 form;
    form.InitForm(record());
    form.Act_Refresh.Execute();
    EXPECT_EQ(desk.ui.last_message(), "您还没选择任何查询参数,请按【F3】呼出查询选项!");
    EXPECT_EQ(form.FunctionCode, "900");
}

TEST_F(Filter, a_query_shows_what_its_conditions_answer_and_cancel_changes_nothing) {
    TF900 form;
    form.InitForm(record());
    desk.data.answer("(D6601", {"NOID text", "J money"}, {{"a", "1.5"}, {"b", "2"}});
    desk.ui.inside.push_back([&](TForm& dialog) {
        dates(form.filter, "2024-03-01", "2024-03-31");
        tests::press(dialog, "F2");
    });
    tests::press(form, "F3");
    EXPECT_EQ(form.AdoQry_Main.RecordCount(), 2);
    EXPECT_EQ(form.DBGridEh.footer_text(1), "3.50");
    EXPECT_EQ(form.ConditionLabel.Caption.get(), " ●凭证日期:(2024-03-01 至 2024-03-31)");
    const std::string before = form.SqlText;
    desk.ui.inside.push_back([&](TForm& dialog) {
        dates(form.filter, "2024-01-01", "2024-01-31");
        tests::press(dialog, "Esc");
    });
    tests::press(form, "F3");
    EXPECT_EQ(form.SqlText, before);
    form.AdoQry_Main.GotoRow(1);
    tests::press(form, "F5");
    EXPECT_EQ(form.AdoQry_Main.RecNo(), 1); // the row looked at is the current one again
}

TEST_F(Filter, a_statement_that_fails_leaves_list_and_condition_as_they_were) {
    TF900 form;
    form.InitForm(record());
    desk.ui.inside.push_back([&](TForm& dialog) {
        dates(form.filter, "2024-03-01", "2024-03-31");
        tests::press(dialog, "F2");
    });
    tests::press(form, "F3"); // nobody prepared an answer
    EXPECT_EQ(form.SqlText, "");
    EXPECT_EQ(form.ConditionLabel.Caption.get(), "");
}

TEST_F(Filter, who_may_not_open_a_function_is_told) {
    the_host().may = [](const Right& right) { return right.action != "open"; };
    TF900 form;
    EXPECT_THROW(form.InitForm(record()), EAbort);
    EXPECT_EQ(desk.ui.last_message(), "您没有打开“明细”的权限，请与系统管理员联系。");
    EXPECT_FALSE(form.Shown());
}

} // namespace host

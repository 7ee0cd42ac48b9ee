// The pickers in which a document's code fields are looked up: what is asked, what is handed back.
#include "module/masterdata/lookup_picker.h"

#include "host/ports/host.h"
#include "module/masterdata/Fqx_link_hb.h"
#include "module/masterdata/U6687_1.h"
#include "module/masterdata/Ulink_6801.h"
#include "module/masterdata/Ulink_6804.h"
#include "module/masterdata/Ulink_km.h"
#include "tests/support/fake_interface.h"

namespace module {
namespace {

using Texts = std::vector<std::string>;

const std::string all_accounts = "SELECT KM_ID,KM_NAME2 AS KM_NAME FROM V6801 where (1>0) ";
const std::string all_summaries = " SELECT *,0 AS I FROM D6803 WHERE (1>0)";
const std::string all_currencies = "select * From d1013 where (1>0) ";
const std::string income_categories =
    "SELECT SZLB, SZLB_NAME,PYM,0 AS I FROM D6804 WHERE SZLB_CLASS=0";
const std::string expenditure_categories =
    "SELECT SZLB, SZLB_NAME,PYM,0 AS I FROM D6804 WHERE SZLB_CLASS=1";
const Texts category_columns = {"SZLB text", "SZLB_NAME text", "PYM text", "I int"};

// A document with one code field.
class Document : public TFrm_Base_Common {
public:
    explicit Document(const std::string& function) : TFrm_Base_Common(nullptr) {
        FreeOnClose = false;
        FunctionCode = function;
    }
    const char* ClassName() const override { return "Document"; }
    TLinkEdit Code{this, "Code", "代码"};
};

class Pickers : public testing::Test {
protected:
    // Opens the picker over a document of the function and does `work` in it.
    template <class Picker>
    void open(const std::string& function, const std::string& condition,
              const std::function<void(Picker&)>& work) {
        document = std::make_unique<Document>(function);
        Picker picker(document.get());
        picker.init(document->Code, condition);
        desk.ui.inside.push_back([&](TForm& form) { work(dynamic_cast<Picker&>(form)); });
        result = picker.ShowModal();
    }
    static Texts codes_shown(LookupPicker& picker, const char* field) {
        Texts shown;
        for (int row = 0; row < picker.AdoQry_Main.RecordCount(); ++row) {
            shown.push_back(
                picker.AdoQry_Main.text_at(row, picker.AdoQry_Main.FieldByName(field).index()));
        }
        return shown;
    }
    void answer_categories() {
        desk.data.answer(income_categories, category_columns,
                         {{"01", "利息收入", "LXSR", "0"},
                          {"02", "罚款收入", "FKSR", "0"},
                          {"X3", "租金", "ZJ", "0"}});
        desk.data.answer(expenditure_categories, category_columns, {{"31", "招待费", "ZDF", "0"}});
    }

    tests::Desk desk;
    std::unique_ptr<Document> document;
    int result = mrNone;
};

// ---- what all of them do

TEST_F(Pickers, an_empty_search_lists_every_row_of_the_base_query_with_the_callers_condition) {
    desk.data.answer(all_accounts, {"KM_ID text", "KM_NAME text"}, {{"1001", "现金"}});
    desk.data.answer(all_summaries, {"GUID text", "ZY text", "PYM text"}, {{"G1", "收货款", "SHK"}});
    desk.data.answer(all_currencies, {"hb_id text", "hb_name text"}, {{"01", "人民币"}});
    open<TFLINK_6801>("646", "", [](auto&) {});
    open<TFLINK_6801>("646", "KM_FL=1", [](auto&) {});
    open<TFLINK_KM>("646", "", [](auto&) {});
    open<TFLINK_KM>("646", "GUID<>''", [](auto&) {});
    open<TQX_LINK_HB>("630", "", [](auto&) {});
    open<TQX_LINK_HB>("630", "HB_BW=0", [](auto&) {});
    EXPECT_EQ(desk.data.queries(),
              (Texts{all_accounts, all_accounts + " and KM_FL=1", all_summaries,
                     all_summaries + " and GUID<>''", all_currencies,
                     all_currencies + " and HB_BW=0"}));
}

TEST_F(Pickers, a_text_is_looked_for_in_code_name_and_pinyin) {
    desk.data.answer(all_summaries, {"GUID text", "ZY text", "PYM text"}, {{"G1", "收货款", "SHK"}});
    desk.data.answer(all_currencies, {"hb_id text", "hb_name text"}, {{"01", "人民币"}});
    open<TFLINK_KM>("646", "", [](auto& picker) { picker.wl_id.enter_text(" 货'款 "); });
    EXPECT_EQ(desk.data.queries().back(),
              " SELECT *,0 AS I FROM D6803 WHERE (1>0) and ((ZY like '%货''款%') or"
              "(pym like '%货''款%')) ");
    open<TQX_LINK_HB>("630", "", [](auto& picker) { picker.wl_id.enter_text("rm"); });
    EXPECT_EQ(desk.data.queries().back(),
              "select * From d1013 where (1>0)  and ((hb_id like '%rm%') or(hb_name like '%rm%') "
              "or(pym like '%rm%')) ");
}

TEST_F(Pickers, only_the_account_pickers_search_reaches_past_the_callers_condition) {
    desk.data.answer(all_accounts, {"KM_ID text", "KM_NAME text"}, {});
    open<TFLINK_6801>("687", "KM_FL=1", [](auto& picker) { picker.wl_id.enter_text("10"); });
    EXPECT_EQ(desk.data.queries().back(),
              all_accounts + " and KM_FL=1 and (KM_id like '%10%') or(KM_NAME2 like '%10%') "
                             "or(pym like '%10%') ");
}

TEST_F(Pickers, a_double_click_hands_over_code_and_name) {
    desk.data.answer(all_currencies, {"hb_id text", "hb_name text"},
                     {{"01", "人民币"}, {"02", "美元"}});
    open<TQX_LINK_HB>("630", "", [](auto& picker) {
        picker.DBGridEh.set_row(1);
        picker.DBGridEh.double_click();
    });
    EXPECT_EQ(result, mrOk);
    EXPECT_EQ(document->Code.Text.get(), "02");
    EXPECT_EQ(document->Code.DisplayName.get(), "美元");
}

TEST_F(Pickers, a_summary_has_no_name_beside_it) {
    desk.data.answer(all_summaries, {"GUID text", "ZY text", "PYM text"}, {{"G1", "收货款", "SHK"}});
    open<TFLINK_KM>("646", "", [](auto& picker) { picker.DBGridEh.double_click(); });
    EXPECT_EQ(document->Code.Text.get(), "收货款");
    EXPECT_EQ(document->Code.DisplayName.get(), "");
}

TEST_F(Pickers, left_without_a_choice_the_field_stays_as_it_was) {
    desk.data.answer(all_currencies, {"hb_id text", "hb_name text"}, {});
    document = std::make_unique<Document>("630");
    document->Code.Text = "09";
    TQX_LINK_HB picker(document.get());
    picker.init(document->Code, "");
    desk.ui.inside.push_back([](TForm& form) {
        tests::press(form, "Enter"); // nothing to take
        EXPECT_EQ(form.ModalResult.get(), mrNone);
    });
    EXPECT_EQ(picker.ShowModal(), mrCancel);
    EXPECT_EQ(document->Code.Text.get(), "09");
}

// ---- categories

TEST_F(Pickers, other_receipts_are_offered_income_and_every_other_function_expenditure) {
    answer_categories();
    open<TFLINK_6804>("646", "", [](auto& picker) { picker.DBGridEh.double_click(); });
    EXPECT_EQ(document->Code.Text.get(), "01");
    EXPECT_EQ(document->Code.DisplayName.get(), "利息收入");
    open<TFLINK_6804>("647", "", [](auto& picker) { picker.DBGridEh.double_click(); });
    EXPECT_EQ(document->Code.Text.get(), "31");
    open<TFLINK_6804>("631", "", [](auto&) {});
    EXPECT_EQ(desk.data.queries(),
              (Texts{income_categories, expenditure_categories, expenditure_categories}));
}

TEST_F(Pickers, a_category_is_found_by_code_name_or_pinyin_while_it_is_typed) {
    answer_categories();
    open<TFLINK_6804>("646", "", [](auto& picker) {
        // typed   listed
        const std::pair<const char*, Texts> attempts[] = {{"收入", {"01", "02"}},
                                                          {"0", {"01", "02"}},
                                                          {" x3 ", {"X3"}},
                                                          {"fks", {"02"}},
                                                          {"没有", {}},
                                                          {"", {"01", "02", "X3"}}};
        for (const auto& [typed, listed] : attempts) {
            picker.wl_id.enter_text(typed);
            EXPECT_EQ(codes_shown(picker, "SZLB"), listed) << typed;
        }
    });
}

TEST_F(Pickers, a_text_that_goes_on_is_looked_for_among_the_rows_loaded) {
    answer_categories();
    open<TFLINK_6804>("646", "", [&](auto& picker) {
        const auto queries_after = [&](const char* typed) {
            const std::size_t before = desk.data.queries().size();
            picker.wl_id.enter_text(typed);
            return desk.data.queries().size() - before;
        };
        EXPECT_EQ(queries_after("f"), 0U);
        EXPECT_EQ(queries_after("fk"), 0U);
        EXPECT_EQ(codes_shown(picker, "SZLB"), (Texts{"02"}));
        EXPECT_EQ(queries_after("f"), 1U);  // shorter
        EXPECT_EQ(queries_after("zj"), 1U); // another
        EXPECT_EQ(codes_shown(picker, "SZLB"), (Texts{"X3"}));
    });
    for (const std::string& query : desk.data.queries()) EXPECT_EQ(query, income_categories);
}

TEST_F(Pickers, fifty_categories_or_more_are_read_again_with_every_letter) {
    std::vector<tests::FakeData::Cells> rows;
    for (int code = 10; code < 59; ++code) {
        rows.push_back({std::to_string(code), "费用" + std::to_string(code), "FY", "0"});
    }
    for (const std::size_t expected : {std::size_t{0}, std::size_t{1}}) {
        desk.data.answer(expenditure_categories, category_columns, rows);
        open<TFLINK_6804>("647", "", [&](auto& picker) {
            const std::size_t before = desk.data.queries().size();
            picker.wl_id.enter_text("12");
            EXPECT_EQ(desk.data.queries().size() - before, expected) << rows.size();
            EXPECT_EQ(codes_shown(picker, "SZLB"), (Texts{"12"}));
        });
        rows.push_back({"59", "费用59", "FY", "0"}); // the fiftieth
    }
}

// ---- a category that is missing

class NewCategory : public Pickers {
protected:
    NewCategory() {
        answer_categories();
        desk.data.answer("select * from D6804 where SZLB=", {"SZLB text"}, {});
        desk.data.answer("SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID=",
                         {"KM_ID text", "KM_NAME_NEW text"}, {{"5301", "营业外收入"}});
    }
    // Presses Insert and saves the category; the list then holds it when it is income.
    void add(TFLINK_6804& picker, const std::string& code, const std::string& kind) {
        desk.ui.inside.push_back([&, code, kind](TForm& form) {
            auto& dialog = dynamic_cast<TF6687_1&>(form);
            EXPECT_EQ(dialog.SZLB_CLASS.Text.get(), "收入类别");
            dialog.SZLB_CLASS.enter_text(kind);
            dialog.Edit1.Text = code;
            dialog.SZLB_NAME.Text = "盘盈";
            dialog.KM_ID.Text = "5301";
            if (kind == "收入类别") {
                desk.data.answer(income_categories, category_columns,
                                 {{"01", "利息收入", "LXSR", "0"}, {code, "盘盈", "PY", "0"}});
            }
            tests::press(form, "F2");
        });
        tests::press(picker, "Insert");
    }
};

TEST_F(NewCategory, is_saved_with_the_rights_of_its_list_and_handed_back) {
    open<TFLINK_6804>("646", "", [&](auto& picker) {
        picker.wl_id.enter_text("zzz");
        add(picker, "04", "收入类别");
    });
    EXPECT_EQ(result, mrOk);
    EXPECT_EQ(document->Code.Text.get(), "04");
    EXPECT_EQ(document->Code.DisplayName.get(), "盘盈");
    ASSERT_EQ(desk.data.executed().size(), 1U);
    EXPECT_EQ(desk.data.executed()[0].batch,
              "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME, PYM,KM_ID,  T) ValueS(0,'04','盘盈',"
              "'PY','5301',0)");
    EXPECT_EQ(desk.data.executed()[0].log.function, "687");
}

TEST_F(NewCategory, of_another_kind_is_not_taken) {
    open<TFLINK_6804>("646", "", [&](auto& picker) {
        add(picker, "41", "费用类别");
        EXPECT_EQ(picker.ModalResult.get(), mrNone);
    });
    EXPECT_EQ(desk.ui.last_message(), "“盘盈”已保存为费用类别，不在这里可以选的类别之内!");
    EXPECT_EQ(document->Code.Text.get(), "");
    EXPECT_EQ(desk.data.executed().size(), 1U);
}

TEST_F(NewCategory, given_up_leaves_the_list_as_it_was) {
    open<TFLINK_6804>("646", "", [&](auto& picker) {
        picker.wl_id.enter_text("zj");
        tests::press(picker, "Insert"); // its dialog is cancelled
        EXPECT_EQ(codes_shown(picker, "SZLB"), (Texts{"X3"}));
    });
    EXPECT_TRUE(desk.data.executed().empty());
    EXPECT_EQ(document->Code.Text.get(), "");
}

TEST_F(NewCategory, needs_the_right_to_add_to_the_list_of_categories) {
    the_host().may = [](const Right& right) {
        return !(right.function == "687" && right.action == "add");
    };
    open<TFLINK_6804>("646", "", [&](auto& picker) {
        EXPECT_FALSE(picker.BTN_INS.Enabled);
        tests::press(picker, "Insert");
    });
    EXPECT_TRUE(desk.ui.inside.empty());
    EXPECT_TRUE(desk.data.executed().empty());
}

} // namespace
} // namespace module

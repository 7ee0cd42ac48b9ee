// Documents of receivables and cash typed in the window, by keys alone.
#include <gtest/gtest.h>

#include "host/contract/U_glo.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"
#include "tests/desktop/desk.h"
#include "tests/forms/small_books.h"
#include "tests/support/module_library.h"

namespace tests {
namespace {

host::Trecord pick(int code) {
    host::Trecord record;
    record.set_code(code);
    return record;
}

struct TradeDesk : Desk {
    TradeDesk() : Desk([](int code) { module_entry()(pick(code), nullptr); }, "2024-03-15") {
        answer_as_small_books(data);
        data.answer("SELECT D651.*,", {"NOID text", "C int", "BDATE date", "T int"}, {});
        data.answer("SELECT D6804.SZLB,",
                    {"SZLB text", "SZLB_NAME text", "ID int", "NOID text", "NOTE text",
                     "SZLB_CLASS int", "MONEY money"},
                    {{"01", "存款利息", "<null>", "<null>", "<null>", "<null>", "0.00"},
                     {"02", "罚款收入", "<null>", "<null>", "<null>", "<null>", "0.00"}});
        data.answer("SELECT NOID FROM SYS_NUMBER", {"NOID text"}, {});
        data.answer("SELECT NOID FROM d651", {"NOID text"}, {});
        const std::vector<std::string> party = {"KH_GYS_ID text", "KG_NAME text"};
        data.answer("SELECT KH_GYS_ID,KG_NAME FROM D1102", party, {{"K1", "常熟建材"}});
        data.answer("select KH_GYS_ID,KG_NAME from D1102", party, {{"K1", "常熟建材"}});
        host::G_UserId = "anna";
        host::G_UserName = "李敏";
    }
    std::string active() const {
        const host::TForm* form = host::the_host().active;
        return form ? form->ClassName() : "";
    }
};

TEST(TradeForms, an_other_receipt_is_typed_by_keys_alone) {
    TradeDesk desk;
    desk.keys({"Ctrl+G", "6", "4", "6", "Enter"});
    ASSERT_EQ(desk.active(), "TF6646");
    desk.keep("646");
    desk.keys({"Insert"});
    ASSERT_EQ(desk.active(), "TF6646_1");
    desk.keys({"K", "1", "Tab"});
    host::TForm& form = *host::the_host().active;
    auto& grid = *dynamic_cast<host::TDBGridEh*>(form.FindComponent("DBGridEh"));
    for (int i = 0; i < 9 && form.ActiveControl() != &grid; ++i) desk.keys({"Tab"});
    ASSERT_EQ(form.ActiveControl(), &grid);
    desk.keys({"Down", "Enter"}); // the category stands; on to the amount
    EXPECT_EQ(grid.current_column()->FieldName, "MONEY");
    desk.type("70");
    desk.keep("646_1");
    desk.keys({"F2"});
    EXPECT_EQ(desk.messages, std::vector<std::string>());
    ASSERT_GE(desk.data.executed().size(), 2U);
    const auto& executed = desk.data.executed();
    const std::string& batch = executed[executed.size() - 2].batch; // then the next number
    EXPECT_EQ(batch,
              "INSERT INTO D651 (C, NOID, KH_GYS_ID, YW_ID, BM_ID, JY_ID, BDATE, ZY, USER_ID, "
              "TOLMONEY,SUMMONEY) VALUES ('0','646240315001','K1','','','1','2024-03-15','','anna',"
              "'70.00','70.00');INSERT INTO D651A (NOID, SZLB, MONEY, NOTE, SZLB_CLASS)  VALUES "
              "('646240315001','02','70.00','',0);");
}

} // namespace
} // namespace tests

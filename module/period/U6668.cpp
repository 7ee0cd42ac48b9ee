// Close the current period, or take the closing back.
#include "module/period/U6668.h"

#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "module/refuse.h"

namespace module {

TF6668* F6668 = nullptr;

namespace {

std::string set_current_period(const Period& period) {
    return "UPDATE D6600 SET PARAM=" + quoted(period.to_text()) + " WHERE ID=2;";
}

const char* const clear_both_periods = "UPDATE D6600 SET PARAM='' WHERE (ID=2) or (id=1);";

} // namespace

// ---- opening ----

TF6668::TF6668(TForm* parent) : PeriodDialog(parent, "结帐 F2", "反结") {
    Caption = "期末结帐";
    PreferredWidth = 76;
    layout = Rows({period_line(), counts_line(), Rule(),
                   Text("1、结帐后不能再输入新的记帐凭证，因此在结帐前，应首先检查本期发生的"),
                   Text("经济业务是否都已经编制记帐凭证，并登记入帐"),
                   Text("2、对各种成本费用类帐户，也应当在结帐前进行必要的结转，并登记入帐。"),
                   buttons_line()});
}

// ---- saving ----

void TF6668::btn_okClick(const TButton& sender) {
    CheckAll();
    InitForm(record_);
    const Period period = current_period();
    if (&sender == &btn_ok) {
        close_period(period);
    } else {
        reopen(period);
    }
    InitForm(record_);
}

// Nothing but the current period moves: balances are carried on by the next posting.
void TF6668::close_period(const Period& period) {
    RequireRight("post", "结帐");
    if (!nothing_waits()) refuse("本期还有未登帐的凭证，不可以进行结帐!");
    if (save(Caption.get() + period_text(), set_current_period(period.next()))) {
        DISPINFO("结帐完成!", 5);
    }
}

void TF6668::reopen(const Period& period) {
    RequireRight("post", "反结帐");
    if (BooksAreStrict()) refuse("本帐套按严格方式管理,不能反结帐!请用红字凭证更正。");
    TClientDataSet periods;
    opensql(periods, FunctionCode,
            "SELECT LEFT(PARAM, 7) AS PARAM,(SELECT LEFT(PARAM, 7) AS PARAM FROM D6600 WHERE ID = "
            "2) AS PARAM1 FROM D6600 WHERE (ID = 1)");
    const std::string first = periods.IsEmpty() ? "" : periods.FieldByName("PARAM").AsText();
    if (first.empty()) refuse("系统还没有建帐，不可以进行反结帐!");
    if (first != periods.FieldByName("PARAM1").AsText()) return reopen_period_before(period);
    return_to_before_set_up();
}

void TF6668::reopen_period_before(const Period& period) {
    if (save("期末反结帐" + period_text(), set_current_period(period.previous()))) {
        DISPINFO("反结帐完成!", 5);
    }
}

// Before the first period there is only the state in which opening figures are typed.
void TF6668::return_to_before_set_up() {
    const char answer =
        DISPINFO("当前系统会计期间为首次建帐，反结将会清除到建帐前，是否确认反结帐？", 2);
    if (answer == 'y' && save("反结至建帐" + period_text(), clear_both_periods)) {
        DISPINFO("反结帐完成!请从[会计科目初始化]模块进行首次期初建帐!", 5);
    }
}

} // namespace module

// Ask for the days, the account and the kinds of documents of the income and expense detail.
#include "module/cash/U6653f.h"

#include "module/refuse.h"

namespace module {

namespace {

constexpr MoneyDialog dialog{
    .caption = "收支明细表 · 查询条件",
    .statement =
        "SELECT A.*, D1101.YW_NAME, D1008.BM_NAME, CASE C WHEN 10 THEN '销售收款' WHEN 11 THEN "
        "'预收款' WHEN 12 THEN '预收退款' WHEN 13 THEN '销售退回' WHEN 20 THEN '采购付款' WHEN 21 "
        "THEN '预付款' WHEN 22 THEN '预付退款' WHEN 24 THEN '采购退回' WHEN 30 THEN '银行存取款单' "
        "WHEN 31 THEN '银行存取款单' WHEN 40 THEN '收款结算' WHEN 50 THEN '费用结算' END AS MNAME "
        "FROM VIEW_XJ A LEFT OUTER JOIN D1101 ON A.YW_ID = D1101.YW_ID LEFT OUTER JOIN D1008 ON "
        "A.BM_ID = D1008.BM_ID  WHERE "};

// What each box lets through, in the order of the boxes.
constexpr const char* kinds_of_box[] = {"OR (A.C=10) OR (A.C=11) OR (A.C=12)",
                                        "OR (A.C=40) ",
                                        "OR (A.C=20) OR (A.C=21) OR (A.C=22)",
                                        "OR (A.C=50) ",
                                        "OR (A.C=30) ",
                                        "OR (A.C=13) ",
                                        "OR (A.C=24) "};

} // namespace

// ---- opening ----

TF6653F::TF6653F(TForm* parent) : MoneyFilter(parent, dialog) {
    layout = Rows({date_row(), Field(JY_ID.Caption, JY_ID, 12), Text("包含以下单据(至少勾选一项)"),
                   Columns({Control(CK1), Control(CK2), Control(CK3), Control(CK4), Spring()}),
                   Columns({Control(CK5), Control(CK6), Control(CK7), Spring()}),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TF6653F::InitForm() {
    MoneyFilter::InitForm();
    for (TCheckBox* box : boxes()) {
        box->Checked = true;
        Remember(*box);
    }
}

// ---- checking ----

void TF6653F::check_choice() {
    for (const TCheckBox* box : boxes())
        if (box->Checked) return;
    CK1.SetFocus();
    refuse("至少勾先一项以上单据!");
}

// ---- statements ----

// A deposit or withdrawal moves money of two accounts. Of one account it is listed where that
// account pays; over all accounts nothing came in or went out, so it is left out.
std::string TF6653F::condition() {
    const std::string accounts =
        account().empty() ? "AND (C<>30)"
                          : "AND (C<>31) AND " + Condition_t("A.JY_ID", "=", account());
    return DateCondition("A", BDATE.value(), EDATE.value()) + " AND (C<>23)" + accounts +
           kinds_asked();
}

std::string TF6653F::kinds_asked() {
    std::string kinds = "AND ((1<0) ";
    std::size_t at = 0;
    for (const TCheckBox* box : boxes()) {
        if (box->Checked) kinds += kinds_of_box[at];
        ++at;
    }
    return kinds + ")";
}

std::string TF6653F::documents_text() const {
    std::string names;
    for (const TCheckBox* box : {&CK1, &CK2, &CK3, &CK4, &CK5, &CK6, &CK7}) {
        if (box->Checked) names += (names.empty() ? "" : "/") + box->Caption.get();
    }
    return names;
}

std::string TF6653F::description() const {
    const std::string asked = account();
    return " ●开单日期:" + days_text() +
           (asked.empty() ? ""
                          : "   ●" + JY_ID.Caption.get() + ":" + asked + "--" +
                                JY_ID.DisplayName.get()) +
           "  ●包含以下单据:" + documents_text();
}

} // namespace module

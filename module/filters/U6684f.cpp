// Ask which vouchers to add up by account: dates, numbers, word, posted or not.
#include "module/filters/U6684f.h"

#include "host/values/period.h"
#include "module/ledgers/account_summary_query.h"

namespace module {

namespace {

constexpr std::int64_t last_number = 9999;

} // namespace

// ---- opening ----

TF6684F::TF6684F(TForm* parent) : VoucherRangeFilter(parent, last_number) {
    Caption = "科目汇总表 · 查询条件";
    PZZ_H1.Min = PZZ_H2.Min = Amount::from_whole(1);
    PZZ_H1.Max = PZZ_H2.Max = Amount::from_whole(last_number);
    std::vector<LayoutNode> rows = range_rows();
    rows.insert(rows.end(), {posting_row(), Buttons({&btn_ok, &btn_Cancel})});
    layout = Rows(rows);
}

VoucherWords TF6684F::read_words() {
    const VoucherWords words =
        read_voucher_words(FunctionCode, "SELECT id,param  FROM d6600 where id=3");
    PZZ.Enabled = !words.fixed;
    return words;
}

// ---- checking ----

void TF6684F::btn_okClick() {
    CheckDates(BDATE, EDATE);
    const std::string condition = dates_and_numbers() + posting_state() + word();
    VoucherRangeFilter::btn_okClick();
    count_vouchers(condition);
    first_ = BDATE.value();
    last_ = EDATE.value();
    posted_only_ = R2.Checked;
    ResultText = account_summary_query(condition);
    Description = " ●凭证日期:  " + date_text() + "     ●凭 证 号: " + number_text() +
                  " ●凭证共：" + vouchers_ + " 张   ●附件共:" + attachments_ + " 张";
}

// ---- statements ----

void TF6684F::count_vouchers(const std::string& condition) {
    TClientDataSet counted;
    opensql(counted, FunctionCode, count_query(condition));
    vouchers_ = counted.FieldByName("A").AsText();
    attachments_ = counted.FieldByName("B").AsText();
}

LedgerCall TF6684F::MonthsOf(const std::string& account) const {
    const Period last = Period::of(last_);
    Period first = Period::of(first_);
    if (first.year() < last.year()) first = Period::of(last.year(), 1);
    return {.before = first.previous().to_text(),
            .show = boltos(posted_only_),
            .first_account = account,
            .last_account = account,
            .first = first.to_text(),
            .last = last.to_text()};
}

} // namespace module

// What the dialogs that choose vouchers share: dates, numbers, word, posted or not.
#include "module/filters/voucher_range_filter.h"

#include "host/values/sql_text.h"

namespace module {

// ---- opening ----

VoucherRangeFilter::VoucherRangeFilter(TForm* parent, std::int64_t last_number)
    : DateRangeFilter(parent, "凭证日期"), last_number_(last_number) {
    for (TRadioButton* state : {&R1, &R2, &R3}) state->GroupIndex = 1;
    PZZ_H1.Min = PZZ_H2.Min = Amount();
}

std::vector<LayoutNode> VoucherRangeFilter::range_rows() {
    return {date_row(),
            Columns({Field("凭 证 号", PZZ_H1, 12), Field("至：", PZZ_H2, 12), Spring()}),
            Columns({Field("凭 证 字", PZZ, 12), Spring()})};
}

LayoutNode VoucherRangeFilter::posting_row() {
    return Group("过帐", {Columns({Control(R1), Control(R2), Control(R3), Spring()})});
}

void VoucherRangeFilter::InitForm() {
    DateRangeFilter::InitForm();
    PZZ_H1.set(std::int64_t{1});
    PZZ_H2.set(last_number_);
    const VoucherWords words = read_words();
    by_kind_ = words.by_kind;
    std::vector<std::string> items = words.words;
    if (by_kind_) items.insert(items.begin(), "所有");
    PZZ.Items = items;
    PZZ.set_index(0);
    R1.Checked = true;
    for (TRadioButton* state : {&R1, &R2, &R3}) Remember(*state);
}

// ---- statements ----

std::string VoucherRangeFilter::dates_and_numbers() const {
    return DateCondition("D6601", BDATE.value(), EDATE.value()) +
           " AND (D6601.PZZ_H>=" + std::to_string(PZZ_H1.as_integer()) +
           ") AND (D6601.PZZ_H<=" + std::to_string(PZZ_H2.as_integer()) + ")";
}

std::string VoucherRangeFilter::posting_state() const {
    if (R2.Checked) return " AND (D6601.D=1)";
    return R3.Checked ? " AND (D6601.D=0)" : "";
}

std::string VoucherRangeFilter::word() const {
    if (!by_kind_ || PZZ.item_index() <= 0) return "";
    return " AND (D6601.pzz=" + quoted(PZZ.Text.get()) + ")";
}

std::string VoucherRangeFilter::number_text() const {
    return "(" + PZZ_H1.Text.get() + " 至 " + PZZ_H2.Text.get() + ")";
}

} // namespace module

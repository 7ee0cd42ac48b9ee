// The lines of a voucher as they stand in the grid: read, filled up, swapped, balanced.
#include "module/vouchers/voucher_grid.h"

namespace module {
namespace {

const char* opposite(const std::string& side) {
    return side == "J" ? "D" : "J";
}

} // namespace

void VoucherGrid::define_fields() {
    lines_.DefineField("NOID", FieldType::Text, 40);
    lines_.DefineField("ZY", FieldType::Text, 100);
    lines_.DefineField("KM_ID", FieldType::Text, 50);
    lines_.DefineField("KM_NAME_NEW", FieldType::Text, 610).ReadOnly = true;
    lines_.DefineField("J", FieldType::Amount).DisplayFormat = "0.00";
    lines_.DefineField("D", FieldType::Amount).DisplayFormat = "0.00";
    lines_.DefineField("INX", FieldType::Integer);
    lines_.DefineField("KM_K", FieldType::Boolean);
}

void VoucherGrid::append_blank_line() {
    lines_.Append();
    lines_.FieldByName("NOID").SetValue(std::string("1"));
    lines_.Post();
}

void VoucherGrid::fill_up() {
    post_current();
    while (lines_.RecordCount() < fewest_lines_shown) append_blank_line();
    lines_.First();
}

void VoucherGrid::post_current() {
    const DataSetState state = lines_.State();
    if (state == DataSetState::Edit || state == DataSetState::Insert) lines_.Post();
}

std::vector<VoucherLine> VoucherGrid::read() const {
    const int summary = lines_.FieldByName("ZY").index();
    const int account = lines_.FieldByName("KM_ID").index();
    const int debit = lines_.FieldByName("J").index();
    const int credit = lines_.FieldByName("D").index();
    const auto amount = [&](int row, int field) {
        const Value value = lines_.value_at(row, field);
        const Amount* exact = std::get_if<Amount>(&value);
        return exact ? *exact : Amount();
    };
    std::vector<VoucherLine> lines;
    for (int row = 0; row < lines_.RecordCount(); ++row) {
        lines.push_back({lines_.text_at(row, summary), lines_.text_at(row, account),
                         amount(row, debit), amount(row, credit)});
    }
    return lines;
}

VoucherLine VoucherGrid::current() const {
    return {lines_.FieldByName("ZY").AsText(), lines_.FieldByName("KM_ID").AsText(),
            lines_.FieldByName("J").AsAmount(), lines_.FieldByName("D").AsAmount()};
}

std::optional<Amount> VoucherGrid::cash_change() const {
    std::optional<Amount> change;
    const TClientDataSet& lines = lines_;
    for (int row = 0; row < lines.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(lines, row);
        if (!lines.FieldByName("KM_K").AsBoolean()) continue;
        change = change.value_or(Amount()) + lines.FieldByName("J").AsAmount() -
                 lines.FieldByName("D").AsAmount();
    }
    return change;
}

void VoucherGrid::swap_sides() {
    const VoucherLine line = current();
    lines_.Edit();
    lines_.FieldByName("J").SetValue(line.credit);
    lines_.FieldByName("D").SetValue(line.debit);
    lines_.Post();
}

Amount VoucherGrid::balancing_amount(const std::string& side) const {
    const VoucherLine line = current();
    const Amount others = difference() - line.debit + line.credit;
    return side == "J" ? -others : others;
}

void VoucherGrid::clear_opposite(const std::string& side) {
    lines_.FieldByName(opposite(side)).SetValue(Amount());
}

void VoucherGrid::repeat_summary_of_line_above() {
    const int row = lines_.RecNo();
    const VoucherLine line = row > 0 ? current() : VoucherLine{};
    if (row < 1 || line.has_summary() || line.has_account() || line.has_amount()) return;
    const std::string above = lines_.text_at(row - 1, lines_.FieldByName("ZY").index());
    if (trimmed(above).empty()) return;
    lines_.Edit();
    lines_.FieldByName("ZY").SetValue(above);
    lines_.Post();
}

bool VoucherGrid::stands_on_last_line() const {
    return lines_.Eof() || lines_.RecNo() == lines_.RecordCount() - 1;
}

std::string difference_text(Amount difference) {
    if (difference.is_zero()) return "";
    return difference.is_negative() ? "贷多 " + (-difference).to_text()
                                    : "借多 " + difference.to_text();
}

} // namespace module

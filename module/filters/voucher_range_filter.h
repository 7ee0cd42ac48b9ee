// What the dialogs that choose vouchers share: dates, numbers, word, posted or not.
#pragma once

#include "module/filters/date_range_filter.h"
#include "module/vouchers/voucher_words.h"

namespace module {

class VoucherRangeFilter : public DateRangeFilter {
public:
    // What the user sees below the dates.
    TNumberEdit PZZ_H1{this, "PZZ_H1", "凭 证 号"}; // first number
    TNumberEdit PZZ_H2{this, "PZZ_H2", "至："};     // last number
    TComboBox PZZ{this, "PZZ", "凭 证 字"};         // voucher word
    TRadioButton R1{this, "R1", "全部"};
    TRadioButton R2{this, "R2", "已过帐"}; // posted
    TRadioButton R3{this, "R3", "未过帐"};

    // What the user does.
    void InitForm() override;

protected:
    VoucherRangeFilter(TForm* parent, std::int64_t last_number);
    virtual VoucherWords read_words() { return read_voucher_words(FunctionCode); }
    std::vector<LayoutNode> range_rows(); // down to the word
    LayoutNode posting_row();
    // Pieces of the condition, in their order.
    std::string dates_and_numbers() const;
    std::string posting_state() const;
    std::string word() const;
    std::string number_text() const; // "(1 至 9999)"

private:
    const std::int64_t last_number_;
    bool by_kind_ = false; // the books use several voucher words
};

} // namespace module

// Vouchers on the customary form: ruled amount columns, the total in capital numerals.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/printing/paper.h"
#include "host/values/date.h"
#include "module/host_names.h"
#include "module/vouchers/voucher_line.h"

namespace module {

// A voucher as the books hold it. The lines' accounts are full names, "银行存款-工行".
struct PaperVoucher {
    std::string title; // the printed title of its word, "记帐凭证"
    std::string word, number, period;
    host::Date date;
    std::int64_t attachments = 0;
    std::string maker, checker; // no checker before the audit
    bool posted = false;
    std::vector<VoucherLine> lines;
};

inline constexpr int lines_a_voucher_page = 6;

// One after the other, each beginning on a page of its own; a voucher with more lines than a page
// has goes on to the next, and only its last page holds the total.
class VoucherPaper final : public PaperDocument {
public:
    VoucherPaper(std::vector<PaperVoucher> vouchers, std::string company, std::string moment);

    std::string title() const override;
    PaperSize size() const override { return {21000, 14800}; } // A5, lying across
    int page_count() const override { return static_cast<int>(places_.size()); }
    PaperPage page(int number) const override;

private:
    // Which page of which voucher.
    struct Place {
        std::size_t voucher;
        int page, pages;
    };
    std::vector<PaperVoucher> vouchers_;
    std::string company_, moment_;
    std::vector<Place> places_;
};

// Reads the vouchers with these keys for printing; one that is gone is left out.
std::vector<PaperVoucher> read_paper_vouchers(const std::string& function,
                                              const std::vector<std::string>& keys);

// The document of these vouchers, with the company and the moment.
std::unique_ptr<PaperDocument> paper_of_vouchers(const std::string& function,
                                                 const std::vector<std::string>& keys);

} // namespace module

// Sets vouchers on pages and reads them for printing.
#include "module/vouchers/voucher_paper.h"

#include "host/contract/U_dataop.h"
#include "host/contract/U_glo.h"
#include "host/dataset/client_dataset.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"
#include "module/vouchers/voucher_page.h"
#include "module/vouchers/voucher_statements.h"

namespace module {

namespace {

int pages_for(const PaperVoucher& voucher) {
    const int lines = static_cast<int>(voucher.lines.size());
    return std::max(1, (lines + lines_a_voucher_page - 1) / lines_a_voucher_page);
}

// The title that the books print over vouchers of this word.
std::string printed_title(const std::string& function, const std::string& word) {
    TClientDataSet row;
    opensql(row, function, "SELECT PZZ_PRINT FROM D6802 WHERE PZZ=" + quoted(word));
    const std::string title = row.IsEmpty() ? "" : trimmed(row.Fields().front()->AsText());
    return title.empty() ? "记帐凭证" : title;
}

std::vector<VoucherLine> read_lines(const std::string& function, const std::string& key) {
    TClientDataSet rows;
    std::vector<VoucherLine> lines;
    opensql(rows, function, select_voucher_lines(key));
    for (rows.First(); !rows.Eof(); rows.Next())
        lines.push_back({rows.FieldByName("ZY").AsText(), rows.FieldByName("KM_NAME_NEW").AsText(),
                         rows.FieldByName("J").AsAmount(), rows.FieldByName("D").AsAmount()});
    return lines;
}

} // namespace

VoucherPaper::VoucherPaper(std::vector<PaperVoucher> vouchers, std::string company,
                           std::string moment)
    : vouchers_(std::move(vouchers)), company_(std::move(company)), moment_(std::move(moment)) {
    for (std::size_t i = 0; i < vouchers_.size(); ++i)
        for (int page = 0, pages = pages_for(vouchers_[i]); page < pages; ++page)
            places_.push_back({i, page, pages});
}

std::string VoucherPaper::title() const {
    if (vouchers_.size() != 1) return "记帐凭证";
    const PaperVoucher& only = vouchers_.front();
    return only.title + " " + only.period + " " + only.word + "-" + only.number;
}

PaperPage VoucherPaper::page(int number) const {
    const Place& place = places_.at(static_cast<std::size_t>(number));
    return voucher_page(vouchers_[place.voucher], place.page, place.pages, company_, moment_);
}

std::vector<PaperVoucher> read_paper_vouchers(const std::string& function,
                                              const std::vector<std::string>& keys) {
    std::vector<PaperVoucher> vouchers;
    std::map<std::string, std::string> titles;
    for (const std::string& key : keys) {
        TClientDataSet head;
        opensql(head, function, select_voucher_head(key));
        if (head.IsEmpty()) continue;
        PaperVoucher voucher;
        const auto text = [&](const char* field) { return head.FieldByName(field).AsText(); };
        voucher.word = text("PZZ");
        voucher.number = text("PZZ_H");
        voucher.period = text("PZQJ");
        voucher.date = head.FieldByName("BDATE").AsDateTime().date;
        voucher.attachments = head.FieldByName("PZZ_Z").AsInteger();
        voucher.maker = text("USER_NAME");
        if (head.FieldByName("T").AsBoolean()) voucher.checker = text("sk");
        voucher.posted = head.FieldByName("D").AsBoolean();
        std::string& title = titles[voucher.word];
        if (title.empty()) title = printed_title(function, voucher.word);
        voucher.title = title;
        voucher.lines = read_lines(function, key);
        vouchers.push_back(std::move(voucher));
    }
    return vouchers;
}

std::unique_ptr<PaperDocument> paper_of_vouchers(const std::string& function,
                                                 const std::vector<std::string>& keys) {
    return std::make_unique<VoucherPaper>(read_paper_vouchers(function, keys), G_CoName,
                                          the_host().clock->now().to_text().substr(0, 16));
}

} // namespace module

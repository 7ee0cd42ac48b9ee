// The voucher words of the books: one word for all vouchers, or words by kind of business.
#include "module/vouchers/voucher_words.h"

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "host/values/text.h"

namespace module {

VoucherWords voucher_words_of(const std::string& scheme) {
    if (scheme == "2") return {{"收", "付", "转"}, false, true};
    if (scheme == "3") return {{"现收", "现付", "银收", "银付", "转"}, false, true};
    return {{"记"}, scheme == "1", false};
}

VoucherWords read_voucher_words(const std::string& function, const std::string& query) {
    TClientDataSet parameter;
    opensql(parameter, function, query);
    if (parameter.IsEmpty()) return voucher_words_of("");
    return voucher_words_of(trimmed(parameter.FieldByName("PARAM").AsText()));
}

} // namespace module

// The accounts that take entries, found by code, name or pinyin while a voucher is typed.
#include "module/vouchers/account_search.h"

#include "host/contract/U_dataop.h"
#include "host/dataset/client_dataset.h"
#include "host/values/code_match.h"
#include "host/values/period.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {
namespace {

// The balance of a period that was not posted yet is that of the period before.
std::string select_leaf_accounts(const std::string& period) {
    const auto current = Period::parse(period);
    const std::string before = current ? current->previous().to_text() : "";
    return "SELECT A.KM_ID,A.KM_NAME_NEW,A.PYM,A.FX,A.KM_K,"
           "ISNULL(N.J,ISNULL(B.J,0.00)) AS J,ISNULL(N.D,ISNULL(B.D,0.00)) AS D FROM V6801 A "
           "LEFT JOIN D6602 N ON N.KM_ID=A.KM_ID AND N.INX=1 AND N.QJ=" +
           quoted(period) +
           " LEFT JOIN D6602 B ON B.KM_ID=A.KM_ID AND B.INX=1 AND B.QJ=" + quoted(before) +
           " WHERE A.ISEND=1 ORDER BY A.KM_ID";
}

} // namespace

void LeafAccounts::load(const std::string& function, const std::string& period) {
    TClientDataSet rows;
    opensql(rows, function, select_leaf_accounts(period));
    accounts_.clear();
    by_code_.clear();
    accounts_.reserve(static_cast<std::size_t>(rows.RecordCount()));
    for (rows.First(); !rows.Eof(); rows.Next()) {
        const std::string side = rows.FieldByName("FX").AsText();
        by_code_[upper_case(rows.FieldByName("KM_ID").AsText())] = accounts_.size();
        accounts_.push_back({rows.FieldByName("KM_ID").AsText(),
                             rows.FieldByName("KM_NAME_NEW").AsText(),
                             rows.FieldByName("PYM").AsText(), side,
                             rows.FieldByName(side == "借" ? "J" : "D").AsAmount(),
                             rows.FieldByName("KM_K").AsBoolean()});
    }
    loaded_ = true;
}

const LeafAccount* LeafAccounts::find(const std::string& code) const {
    const auto at = by_code_.find(upper_case(code));
    return at == by_code_.end() ? nullptr : &accounts_[at->second];
}

std::vector<const LeafAccount*> LeafAccounts::matching(const std::string& text) const {
    return rows_fitting(accounts_, text);
}

} // namespace module

// The calls of the ledger procedures, word for word.
#include "module/ledgers/ledger_call.h"

#include "host/values/sql_text.h"

namespace module {

namespace {

std::string call_of(const std::string& procedure, const LedgerCall& call) {
    return "EXEC " + procedure + " @P_year=" + quoted(call.before) +
           ",@p_show=" + quoted(call.show) + ",@KM_ID1=" + quoted(call.first_account) +
           (call.last_account ? ",@KM_ID2=" + quoted(*call.last_account) : ",@p_xj=1") +
           ",@P_month1=" + quoted(call.first) + ",@P_month2=" + quoted(call.last);
}

} // namespace

std::string detailed_ledger_call(const LedgerCall& call) {
    return call_of("SYS_685", call);
}

std::string general_ledger_call(const LedgerCall& call, std::int64_t level) {
    return call_of("SYS_686", call) + ", @p_kmjb=" + quoted(std::to_string(level));
}

LedgerCall account_in_period(const std::string& account, const std::string& period) {
    return {.before = period,
            .show = "1",
            .first_account = account,
            .last_account = account,
            .first = period,
            .last = period};
}

} // namespace module

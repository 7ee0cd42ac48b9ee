// The number of a new document: one that is missing or taken gives way to a fresh one.
#include "module/trade/document_number.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

namespace {

bool is_taken(const std::string& function, const NumberSeries& series, const std::string& number) {
    TClientDataSet found;
    opensql(found, function,
            "SELECT NOID FROM " + std::string(series.table) + " WHERE NOID=" + quoted(number));
    return !found.IsEmpty();
}

} // namespace

std::string fresh_number(const NumberSeries& series) { return GetNOID(series.code, series.table); }

void settle_number(TFrm_Base_Common& form, TEdit& number, const NumberSeries& series) {
    if (number.ReadOnly || form.leaving_by_cancel()) return;
    const std::string typed = trimmed(number.Text.get());
    if (typed.empty() || is_taken(form.FunctionCode, series, typed)) {
        number.Text = fresh_number(series);
    } else {
        number.Text = typed;
    }
}

} // namespace module

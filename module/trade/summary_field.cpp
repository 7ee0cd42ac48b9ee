// The summary of a document: picked from the common summaries, or typed.
#include "module/trade/summary_field.h"

#include "host/values/text.h"
#include "module/masterdata/Ulink_km.h"

namespace module {

namespace {

constexpr int longest_summary = 200;

std::vector<Suggestion> summaries_fitting(const std::string& function, const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty()) return {};
    TClientDataSet rows;
    opensql(rows, function, "SELECT ZY,PYM FROM D6803 ORDER BY ZY");
    std::vector<Suggestion> suggestions;
    for (int row = 0; row < rows.RecordCount(); ++row) {
        const std::string summary = rows.text_at(row, 0);
        if (contains_text(summary, text) || contains_text(rows.text_at(row, 1), text))
            suggestions.push_back({summary, {summary}, ""});
    }
    return suggestions;
}

} // namespace

void offer_summaries(TFrm_Base_Common& form, TLinkEdit& summary) {
    summary.MaxLength = longest_summary;
    summary.OnButtonClick = [&form, &summary] {
        if (summary.ReadOnly) return;
        TFLINK_KM picker(&form);
        picker.init(summary, "");
        picker.ShowModal();
    };
    summary.OnSuggest = [&form](const std::string& typed) {
        return summaries_fitting(form.FunctionCode, typed);
    };
}

} // namespace module

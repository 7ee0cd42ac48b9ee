// What the dialogs that choose trade documents share: party, a text to search for, dates.
#include "module/filters/document_filter.h"

#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace module {

namespace {

std::string item(const std::string& caption, const std::string& value) {
    return value.empty() ? "" : "     ●" + replaced(caption, " ", "") + ":" + value;
}

} // namespace

// ---- opening ----

DocumentFilter::DocumentFilter(TForm* parent, const DocumentFilterKind& kind)
    : DateRangeFilter(parent, "开单日期"), KH_GYS_ID(this, "KH_GYS_ID", kind.party_caption),
      NOID(this, "NOID", kind.text_caption), kind_(kind) {
    Caption = kind.caption;
    bind_trade_code(*this, KH_GYS_ID, kind.party);
    NOID.MaxLength = 100;
}

std::vector<LayoutNode> DocumentFilter::rows() {
    return {Columns({Field(kind_.party_caption, KH_GYS_ID, 12), Spring()}),
            Columns({Field(kind_.text_caption, NOID, 24), Control(CK1), Spring()}), date_row()};
}

// ---- checking ----

void DocumentFilter::btn_okClick() {
    CheckDates(BDATE, EDATE);
    ResultText = DateCondition(kind_.table, BDATE.value(), EDATE.value()) + party_term() +
                 text_term() + more_terms();
    Description = description();
    TFrm_Sys_Filter::btn_okClick();
}

// ---- statements ----

std::string DocumentFilter::party_term() const {
    const std::string party = trimmed(KH_GYS_ID.Text.get());
    if (party.empty()) return "";
    return " AND (" + std::string(kind_.table) + ".KH_GYS_ID=" + quoted(party) + ")";
}

std::string DocumentFilter::text_term() const {
    const std::string text = trimmed(NOID.Text.get());
    if (text.empty()) return "";
    const std::string wanted =
        CK1.Checked ? "=" + quoted(text) : " like " + quoted("%" + text + "%");
    std::string alternatives;
    for (const char* column : kind_.searched) {
        if (column == nullptr) continue;
        alternatives += std::string(alternatives.empty() ? "(" : " or (") + kind_.table + "." +
                        column + wanted + ")";
    }
    return " AND (" + alternatives + ")";
}

std::string DocumentFilter::description() const {
    const std::string party = trimmed(KH_GYS_ID.Text.get());
    const std::string name = party.empty() ? "" : " " + KH_GYS_ID.DisplayName.get();
    return " ●开单日期:" + date_text() + item(kind_.party_caption, party + name) +
           item(kind_.text_caption, trimmed(NOID.Text.get())) + more_description();
}

} // namespace module

// What the dialogs that choose trade documents share: party, a text to search for, dates.
#pragma once

#include "module/filters/date_range_filter.h"
#include "module/trade/trade_code.h"

namespace module {

// In what one dialog differs from the others.
struct DocumentFilterKind {
    const char* caption; // "其他收款单 · 查询条件"
    const char* table;   // of the documents, "D651"
    const TradeCode& party;
    const char* party_caption; // "客户代号"
    const char* text_caption;  // "单 号/摘 要"
    const char* searched[2];   // columns that a text is looked for in; null where there is one
};

// Blank fields ask nothing. A text is looked for inside the columns, or must be all that stands
// there. The forms of the family add terms of their own behind.
class DocumentFilter : public DateRangeFilter {
public:
    // What the user sees, from top to bottom.
    TLinkEdit KH_GYS_ID;                 // customer or supplier
    TEdit NOID;                          // part of a number or of another text
    TCheckBox CK1{this, "CK1", "精确"};  // the whole text, nothing before or behind it

    // What the user does.
    void btn_okClick() override;

protected:
    DocumentFilter(TForm* parent, const DocumentFilterKind& kind); // `kind` outlives the dialog
    std::vector<LayoutNode> rows();      // down to the dates
    virtual std::string more_terms() const { return ""; }       // " AND (c=0)"
    virtual std::string more_description() const { return ""; } // "     ●单据类型:收款结算"

private:
    std::string party_term() const;
    std::string text_term() const;
    std::string description() const;
    const DocumentFilterKind& kind_;
};

} // namespace module

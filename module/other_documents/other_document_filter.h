// What the dialogs of the two lists share: party, number or summary, dates, type.
#pragma once

#include "module/filters/document_filter.h"
#include "module/other_documents/other_document_kind.h"

namespace module {

class OtherDocumentFilter : public DocumentFilter {
public:
    // What the user sees below the dates.
    TComboBox CB1{this, "CB1", "单据类型"}; // all, settled at once, left open

    // What the user does.
    void InitForm() override;

protected:
    OtherDocumentFilter(TForm* parent, const OtherDocumentKind& kind);
    std::string more_terms() const override;
    std::string more_description() const override;
};

} // namespace module

// Ask which other receipts to list: customer, number or summary, dates, type.
#pragma once

#include "module/other_documents/other_document_filter.h"

namespace module {

class TF6646F : public OtherDocumentFilter {
public:
    explicit TF6646F(TForm* parent);
    const char* ClassName() const override { return "TF6646F"; }
};

} // namespace module

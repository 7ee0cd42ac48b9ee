// Ask which other payments to list: supplier, number or summary, dates, type.
#pragma once

#include "module/other_documents/other_document_filter.h"

namespace module {

class TF6647F : public OtherDocumentFilter {
public:
    explicit TF6647F(TForm* parent);
    const char* ClassName() const override { return "TF6647F"; }
};

} // namespace module

// List the other receipts: enter, copy, change, delete them.
#pragma once

#include "module/other_documents/other_document_list.h"

namespace module {

class TF6646 : public OtherDocumentList {
public:
    explicit TF6646(TForm* parent);
    const char* ClassName() const override { return "TF6646"; }

protected:
    std::unique_ptr<OtherDocument> make_entry_form() override;
    std::unique_ptr<OtherDocumentFilter> make_filter() override;
};

extern TF6646* F6646;

} // namespace module

// List the other payments: enter, copy, change, delete them.
#pragma once

#include "module/other_documents/other_document_list.h"

namespace module {

class TF6647 : public OtherDocumentList {
public:
    explicit TF6647(TForm* parent);
    const char* ClassName() const override { return "TF6647"; }

protected:
    std::unique_ptr<OtherDocument> make_entry_form() override;
    std::unique_ptr<OtherDocumentFilter> make_filter() override;
};

extern TF6647* F6647;

} // namespace module

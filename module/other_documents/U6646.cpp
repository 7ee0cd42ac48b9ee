// List the other receipts: enter, copy, change, delete them.
#include "module/other_documents/U6646.h"

#include "module/other_documents/U6646_1.h"
#include "module/other_documents/U6646f.h"

namespace module {

TF6646* F6646 = nullptr;

TF6646::TF6646(TForm* parent) : OtherDocumentList(parent, other_receipts) {}

std::unique_ptr<OtherDocument> TF6646::make_entry_form() {
    return std::make_unique<TF6646_1>(this);
}

std::unique_ptr<OtherDocumentFilter> TF6646::make_filter() {
    return std::make_unique<TF6646F>(this);
}

} // namespace module

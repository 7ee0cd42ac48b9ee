// List the other payments: enter, copy, change, delete them.
#include "module/other_documents/U6647.h"

#include "module/other_documents/U6647_1.h"
#include "module/other_documents/U6647f.h"

namespace module {

TF6647* F6647 = nullptr;

TF6647::TF6647(TForm* parent) : OtherDocumentList(parent, other_payments) {}

std::unique_ptr<OtherDocument> TF6647::make_entry_form() {
    return std::make_unique<TF6647_1>(this);
}

std::unique_ptr<OtherDocumentFilter> TF6647::make_filter() {
    return std::make_unique<TF6647F>(this);
}

} // namespace module

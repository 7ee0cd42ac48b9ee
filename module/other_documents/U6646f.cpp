// Ask which other receipts to list: customer, number or summary, dates, type.
#include "module/other_documents/U6646f.h"

namespace module {

TF6646F::TF6646F(TForm* parent) : OtherDocumentFilter(parent, other_receipts) {}

} // namespace module

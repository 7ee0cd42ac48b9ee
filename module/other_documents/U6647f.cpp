// Ask which other payments to list: supplier, number or summary, dates, type.
#include "module/other_documents/U6647f.h"

namespace module {

TF6647F::TF6647F(TForm* parent) : OtherDocumentFilter(parent, other_payments) {}

} // namespace module

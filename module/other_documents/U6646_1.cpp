// Enter, change or look at one other receipt, by category: settled at once or left open.
#include "module/other_documents/U6646_1.h"

namespace module {

TF6646_1::TF6646_1(TForm* parent) : OtherDocument(parent, other_receipts) {}

} // namespace module

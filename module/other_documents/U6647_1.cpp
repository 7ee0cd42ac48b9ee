// Enter, change or look at one other payment, by category: settled at once or left open.
#include "module/other_documents/U6647_1.h"

namespace module {

TF6647_1::TF6647_1(TForm* parent) : OtherDocument(parent, other_payments) {}

} // namespace module

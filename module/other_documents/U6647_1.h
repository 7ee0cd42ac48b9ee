// Enter, change or look at one other payment, by category: settled at once or left open.
#pragma once

#include "module/other_documents/other_document.h"

namespace module {

class TF6647_1 : public OtherDocument {
public:
    explicit TF6647_1(TForm* parent);
    const char* ClassName() const override { return "TF6647_1"; }
};

} // namespace module

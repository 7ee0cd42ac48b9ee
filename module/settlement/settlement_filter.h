// What the condition dialogs of receipts and payments share.
#pragma once

#include "module/filters/document_filter.h"

namespace module {

class SettlementFilter : public DocumentFilter {
protected:
    SettlementFilter(TForm* parent, const DocumentFilterKind& kind)
        : DocumentFilter(parent, kind) {
        std::vector<LayoutNode> asked = rows();
        asked.push_back(Buttons({&btn_ok, &btn_Cancel}));
        layout = Rows(std::move(asked));
    }
};

} // namespace module

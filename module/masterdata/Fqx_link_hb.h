// Pick the currency of a document.
#pragma once

#include "module/masterdata/lookup_picker.h"

namespace module {

class TQX_LINK_HB : public LookupPicker {
public:
    explicit TQX_LINK_HB(TForm* parent);
    const char* ClassName() const override { return "TQX_LINK_HB"; }
};

} // namespace module

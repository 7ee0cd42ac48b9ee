// Pick a common summary for the summary field of a document.
#pragma once

#include "module/masterdata/lookup_picker.h"

namespace module {

class TFLINK_KM : public LookupPicker {
public:
    explicit TFLINK_KM(TForm* parent);
    const char* ClassName() const override { return "TFLINK_KM"; }
};

} // namespace module

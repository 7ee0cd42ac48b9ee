// Pick any account of the chart, by code, name or pinyin.
#pragma once

#include "module/masterdata/lookup_picker.h"

namespace module {

class TFLINK_6801 : public LookupPicker {
public:
    explicit TFLINK_6801(TForm* parent);
    const char* ClassName() const override { return "TFLINK_6801"; }
};

} // namespace module

// The name that belongs to a code field, as a part of its own.
#pragma once

#include "host/controls/edits.h"
#include "module/host_names.h"

namespace module {

// The field shows the name beside the code already; here it can be asked for by its own name.
class CodeName : public TLabel {
public:
    CodeName(TForm* form, const std::string& name, const TLinkEdit& code)
        : TLabel(form, name), code_(code) {}
    std::string value_text() const override { return code_.DisplayName; }

private:
    const TLinkEdit& code_;
};

} // namespace module

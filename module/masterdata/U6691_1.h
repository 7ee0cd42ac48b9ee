// Enter or change one cash-flow item.
#pragma once

#include "module/masterdata/code_tree_dialog.h"

namespace module {

class TF6691_1 : public CodeTreeDialog {
public:
    explicit TF6691_1(TForm* parent);
    const char* ClassName() const override { return "TF6691_1"; }

protected:
    // Steps in which the trees differ.
    void show_more(TClientDataSet*) override {}
    std::string update() const override;
};

} // namespace module

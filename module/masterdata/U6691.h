// Maintain the cash-flow items as a tree.
#pragma once

#include <memory>

#include "host/forms/Base_Node.h"
#include "module/host_names.h"

namespace module {

class TF6691_1;

class TF6691 : public TFrm_Base_Node {
public:
    // What the user does; the tree and its tools are those of every tree.
    explicit TF6691(TForm* parent);
    ~TF6691() override;
    const char* ClassName() const override { return "TF6691"; }
    void InitForm(const Trecord& record) override;

protected:
    // Steps of every tree that differ here.
    TFrm_Base_Node_d* Dialog() override;

private:
    std::unique_ptr<TF6691_1> F6691_1;
};

extern TF6691* F6691;

} // namespace module

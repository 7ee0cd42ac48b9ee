// List the voucher words and mark the default one.
#pragma once

#include <memory>

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

class TF6682_1;

class TF6682 : public TFrm_Base_Outer {
public:
    // What the user does.
    explicit TF6682(TForm* parent);
    ~TF6682() override;
    const char* ClassName() const override { return "TF6682"; }
    void InitForm(const Trecord& record) override;

protected:
    // Steps of every code list that differ here.
    TFrm_Base_Detail* Dialog() override;

private:
    std::unique_ptr<TF6682_1> F6682_1;
};

extern TF6682* F6682;

} // namespace module

// List the common summaries that voucher lines offer.
#pragma once

#include <memory>

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

class TF6683_1;

class TF6683 : public TFrm_Base_Outer {
public:
    // What the user does.
    explicit TF6683(TForm* parent);
    ~TF6683() override;
    const char* ClassName() const override { return "TF6683"; }
    void InitForm(const Trecord& record) override;

protected:
    // Steps of every code list that differ here.
    TFrm_Base_Detail* Dialog() override;

private:
    std::unique_ptr<TF6683_1> F6683_1;
};

extern TF6683* F6683;

} // namespace module

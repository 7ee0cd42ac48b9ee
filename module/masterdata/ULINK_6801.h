// Pick any account of the chart, by code, name or pinyin.
#pragma once

#include "host/forms/Base_Link.h"
#include "module/host_names.h"

namespace module {

class TFLINK_6801 : public TBase_Link {
public:
    explicit TFLINK_6801(TForm* parent);
    const char* ClassName() const override { return "TFLINK_6801"; }

    // The account chosen goes into `edit`, its name beside it. A `condition` narrows the list; it
    // binds to a search by code only: what is found by name or pinyin is listed whatever it says.
    void init(TLinkEdit& edit, const std::string& condition);

    // What the user does.
    void refreshdate(); // the accounts that fit what is searched for
    void DBGridEhDblClick();
    void btn_okClick() override;

protected:
    void FormShow() override;

private:
    TLinkEdit* edit_ = nullptr;
    std::string base_query_;
};

} // namespace module

// A lookup picker: a search box over a grid, Enter takes the row.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"

namespace host {

class TBase_Link : public TFrm_Base_Dialog {
public:
    explicit TBase_Link(TForm* parent);
    TEdit wl_id{this, "wl_id"};
    TClientDataSet AdoQry_Main;
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};

    void btn_okClick() override; // does nothing while no row is found

protected:
    void FormKeyDown(Key& key) override; // up and down choose while the search box has the focus
    void FormShow() override;
};

} // namespace host

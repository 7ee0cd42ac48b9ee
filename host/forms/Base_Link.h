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
};

} // namespace host

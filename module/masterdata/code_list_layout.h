// How a list of codes stands: tool bar, search box, grid.
#pragma once

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

inline LayoutNode code_list_layout(TFrm_Base_Outer& form) {
    return Rows({ToolBar({&form.Act_Add, &form.Act_CopyAdd, &form.Act_Modify, &form.Act_Delete,
                          nullptr, &form.Act_Refresh, nullptr, &form.Act_Print, &form.Act_Preview,
                          &form.Act_Export, nullptr, &form.Act_Quit}),
                 Columns({Field("查找", form.SearchBox, 24), Spring()}), Rest(form.DBGridEh)});
}

} // namespace module

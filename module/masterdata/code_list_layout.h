// How a list of codes stands: tool bar, choice of a kind where there is one, search box, grid.
#pragma once

#include <vector>

#include "host/forms/Base_Outer.h"
#include "module/host_names.h"

namespace module {

inline LayoutNode code_list_layout(TFrm_Base_Outer& form,
                                   const std::vector<TSpeedButton*>& kinds = {}) {
    std::vector<LayoutNode> choices;
    for (TSpeedButton* kind : kinds) choices.push_back(Control(*kind));
    LayoutNode search = Field("查找", form.SearchBox, 24);
    if (choices.empty()) {
        choices = {std::move(search), Spring()};
    } else {
        choices.push_back(Spring());
        choices.push_back(std::move(search));
    }
    return Rows({ToolBar({&form.Act_Add, &form.Act_CopyAdd, &form.Act_Modify, &form.Act_Delete,
                          nullptr, &form.Act_Refresh, nullptr, &form.Act_Print, &form.Act_Preview,
                          &form.Act_Export, nullptr, &form.Act_Quit}),
                 Columns(std::move(choices)), Rest(form.DBGridEh)});
}

} // namespace module

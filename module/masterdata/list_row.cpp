// Shows what a dialog saved in the list behind it, without reading the list again.
#include "module/masterdata/list_row.h"

namespace module {

void write_list_row(TClientDataSet& list, bool added,
                    const std::vector<std::pair<std::string, Value>>& values) {
    if (added) {
        list.Append();
    } else {
        list.Edit();
    }
    for (const auto& [field, value] : values) list.FieldByName(field).SetValue(value);
    list.Post();
}

} // namespace module

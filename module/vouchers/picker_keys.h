// Arrow keys in a search box choose among the rows found.
#pragma once

#include "host/controls/key.h"
#include "host/dataset/client_dataset.h"
#include "module/host_names.h"

namespace module {

// Moves the rows' cursor for Up and Down and uses the key up; leaves every other key alone.
inline void move_row_from_search(Key& key, TClientDataSet& rows) {
    if (key.code == KeyCode::Down) {
        if (rows.RecNo() < rows.RecordCount() - 1) rows.Next();
    } else if (key.code == KeyCode::Up) {
        if (rows.RecNo() > 0) rows.Prior();
    } else {
        return;
    }
    key = {};
}

} // namespace module

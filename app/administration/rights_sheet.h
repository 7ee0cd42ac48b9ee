// The rights of one role as a sheet: a row a function, a mark an action.
#pragma once

#include <string>

#include "host/controls/grid.h"
#include "host/dataset/client_dataset.h"

namespace app {

// Fields: KEY ("661"), AREA, NAME, and one flag an action, named as the action in upper case.
// Whoever may do something in a function may open it: marking any action marks 打开, and without
// 打开 the others go.
class RightsSheet {
public:
    RightsSheet(host::TClientDataSet& rows, host::TDBGridEh& grid);

    // All functions that can be granted, marked as the role has them; "" for a role without any.
    void read(const std::string& function, const std::string& role);
    void mark_row(bool on); // the current function: all that means something in it
    void mark_all(bool on);
    // The statements that give a role exactly what is marked.
    std::string save_batch(const std::string& role) const;

private:
    void build_grid(host::TDBGridEh& grid);
    void typed(host::TField& field, const std::string& text);
    void fill();
    void mark(bool on);

    host::TClientDataSet& rows_;
};

} // namespace app

// Sums below the amount columns of a grid.
#pragma once

#include <string>

namespace host {

class TDBGridEh;

// Gives the columns of the listed fields a sum in the footer, unless they have a footer already.
void add_sum_footers(TDBGridEh& grid, const std::string& fields);

} // namespace host

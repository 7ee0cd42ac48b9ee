// Sums below the amount columns of a grid.
#pragma once

#include <string>
#include <vector>

namespace host {

class TDBGridEh;

// "B1,B2" → {"B1", "B2"}
std::vector<std::string> field_names(const std::string& list);

// Gives the columns of the listed fields a sum in the footer, unless they have a footer already.
void add_sum_footers(TDBGridEh& grid, const std::string& fields);

} // namespace host

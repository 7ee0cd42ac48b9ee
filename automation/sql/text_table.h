// A result set as a table for the eye.
#pragma once

#include <ostream>

#include "automation/sql/collected_result.h"

namespace automation {

// Columns are as wide as their widest cell, where a Chinese character counts two; a column that
// holds only numbers is set to the right, NULL is written as NULL.
void print_table(const ResultSet& set, std::ostream& out);

} // namespace automation

// A plan as readable text: its statements, where their parameters come from, what columns come out.
#pragma once

#include "tsql/plan/plan.h"

#include <string>

namespace tsql {

// One line a statement, what belongs to it indented below.
//
//     query SELECT t1."J" FROM "D6602" AS t1 WHERE (t1."QJ"=?1)
//       ?1 literal 0 varchar(8000)
//       J decimal(18,2)
std::string plan_text(const Plan& plan);

} // namespace tsql

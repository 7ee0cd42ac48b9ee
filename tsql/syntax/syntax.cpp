// The few members that need the whole tree known: nodes that own a query.
#include "tsql/syntax/syntax.h"

namespace tsql {

ScalarSubquery::ScalarSubquery() : Expression(own_kind) {}
ScalarSubquery::~ScalarSubquery() = default;
InQuery::InQuery() : Expression(own_kind) {}
InQuery::~InQuery() = default;
Exists::Exists() : Expression(own_kind) {}
Exists::~Exists() = default;
QuantifiedComparison::QuantifiedComparison() : Expression(own_kind) {}
QuantifiedComparison::~QuantifiedComparison() = default;

} // namespace tsql

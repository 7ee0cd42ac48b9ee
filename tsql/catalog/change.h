// What a definition changes in the catalogue: objects that come, objects that go.
#pragma once

#include "tsql/catalog/object.h"

#include <memory>
#include <string>
#include <vector>

namespace tsql {

// Applied as a whole by Catalog::apply; first the names that go, then the objects that come. An
// object whose name is there already takes the place of the old one.
struct CatalogChange {
    std::vector<std::string> drop;
    std::vector<std::shared_ptr<const CatalogObject>> put;
    bool temporary = false; // concerns #tables of this connection only: nothing is written to file
};

} // namespace tsql

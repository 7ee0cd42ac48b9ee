// Looking into a table, and parsing the text of a module when it is first used.
#include "tsql/catalog/object.h"

#include "tsql/catalog/catalog.h"
#include "tsql/parser/parser.h"

namespace tsql {

int CatalogTable::find_column(std::string_view column) const {
    const NameLess less;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!less(columns[i].name, column) && !less(column, columns[i].name)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

int CatalogTable::identity_column() const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].identity) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

const Statement& CatalogModule::syntax() const {
    if (!parsed_) {
        parsed_ = std::make_shared<const Batch>(parse(definition));
    }
    return *parsed_->statements.front();
}

} // namespace tsql

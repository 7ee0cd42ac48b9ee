// Looking into a table, and parsing the text of a module when it is first used.
#include "tsql/catalog/object.h"

#include "tsql/catalog/catalog.h"
#include "tsql/parser/parser.h"

namespace tsql {

const char* CatalogForeignKey::action_text(int action) {
    constexpr const char* actions[] = {"NO ACTION", "CASCADE", "SET NULL", "SET DEFAULT"};
    return actions[action];
}

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

std::string mark_of(std::string_view text) {
    std::uint64_t mark = 1469598103934665603ULL;
    for (const char c : text) {
        mark = (mark ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    }
    constexpr const char* digits = "0123456789abcdef";
    std::string shown;
    for (int shift = 28; shift >= 0; shift -= 4) {
        shown += digits[mark >> shift & 0xf];
    }
    return shown;
}

std::string copy_name(const CatalogTable& table, bool inserted) {
    // The columns are part of the name: a table that was altered gets new copies.
    std::string columns;
    for (const CatalogColumn& column : table.columns) {
        columns += column.name + column.type.text();
    }
    return (inserted ? "inserted:" : "deleted:") + table.name + ':' + mark_of(columns);
}

std::shared_ptr<const Batch> CatalogModule::tree() const {
    if (!parsed_) {
        parsed_ = std::make_shared<const Batch>(parse(definition));
    }
    return parsed_;
}

const Statement& CatalogModule::syntax() const {
    return *tree()->statements.front();
}

} // namespace tsql

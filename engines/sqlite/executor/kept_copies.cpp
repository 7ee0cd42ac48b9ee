// Temporary tables beside temporary tables.
#include "engines/sqlite/executor/kept_copies.h"

#include "tsql/binder/context.h"
#include "tsql/emit/common/quote.h"

namespace engines {

KeptCopies::KeptCopies(sqlite3* connection, const tsql::CatalogTable& table, int number)
    : connection_(connection) {
    for (std::size_t i = 0; i < copies_.size(); ++i) {
        const std::string copy = tsql::copy_name(table, i == 0);
        copies_[i] = "temp." + tsql::quoted_name(copy);
        kept_[i] = "temp." + tsql::quoted_name(copy + "~" + std::to_string(number));
        run_text(connection_, "CREATE TABLE " + kept_[i] + " AS SELECT * FROM " + copies_[i]);
    }
}

void KeptCopies::put_back() {
    for (std::size_t i = 0; i < copies_.size(); ++i) {
        run_text(connection_, "DELETE FROM " + copies_[i] + "; INSERT INTO " + copies_[i] +
                                  " SELECT * FROM " + kept_[i] + "; DROP TABLE " + kept_[i]);
    }
}

} // namespace engines

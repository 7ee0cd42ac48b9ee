// The SQLite side of definitions: tables, indexes, copies of rows for triggers.
#pragma once

#include "tsql/binder/binder.h"

#include <string>
#include <vector>

namespace tsql::sqlite {

// CREATE TABLE with its checks and foreign keys; keys and indexes are statements of their own. The
// columns keep their T-SQL types: their affinity fits the stored values.
std::string create_table(const CatalogTable& table, Binder& binder, bool if_missing);

// CREATE INDEX, and for a unique one over nullable columns a second by which NULLs are equal.
std::vector<std::string> create_index(const CatalogTable& table, const CatalogIndex& index,
                                      Binder& binder);
std::vector<std::string> drop_index(const CatalogTable& table, const CatalogIndex& index);

// The copy of a table's new or old rows: zf_rowid and all stored columns.
std::string create_copy(const CatalogTable& table, bool inserted);

// Replaces the declaration of a table that stays as it is on disk (checks, foreign keys, types).
std::vector<std::string> redeclare(const CatalogTable& table, Binder& binder);

} // namespace tsql::sqlite

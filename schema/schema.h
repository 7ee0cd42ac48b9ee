// What new books are made of: the objects of the database, and the rows that a template puts in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace schema {

// The number of this state of the objects below. It rises with every change of any of them, so that
// books know whether a program is older than they are (a test tells when it was forgotten).
inline constexpr int version = 5;

// One object of the database: a batch of its own, in T-SQL as a SQL Server takes it.
struct Object {
    std::string_view name; // "D6601"
    std::string_view text; // CREATE TABLE …
    std::string_view kind; // "TABLE", "VIEW", "FUNCTION", "PROCEDURE", "TRIGGER"
    bool is_table() const { return kind == "TABLE"; }
};

// Every object, each after the ones it needs.
std::vector<Object> objects();

// What a database keeps of an object that is no table: its text from CREATE on, without the comment
// above it, without blanks and semicolons behind it.
std::string_view definition_of(std::string_view text);

// A column or an index of a table.
struct TablePart {
    std::string_view name; // "PZZ_Z", "IX_D6601_BDATE"
    std::string_view text; // "PZZ_Z int NOT NULL DEFAULT 0", "CREATE INDEX …"
};
struct TableParts {
    std::vector<TablePart> columns, indexes; // indexes: without keys and unique constraints
};

// The parts of a table as its text names them, one a line.
TableParts parts_of(const Object& table);

// Rows for one table. Every row has as many cells as there are columns; cells are plain texts.
struct TemplateTable {
    std::string name; // "D6801"
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
};

// The template used when none is asked for.
inline constexpr std::string_view default_template = "four_digit";

// "four_digit", …
std::vector<std::string> template_names();

// The tables of a template, parents before children; empty when there is no such template.
std::vector<TemplateTable> template_tables(std::string_view name);

} // namespace schema

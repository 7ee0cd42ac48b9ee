// What new books are made of: the objects of the database, and the rows that a template puts in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace schema {

// One object of the database: a batch of its own, in T-SQL as a SQL Server takes it.
struct Object {
    std::string_view name; // "D6601"
    std::string_view text; // CREATE TABLE …
};

// Every object, each after the ones it needs.
std::vector<Object> objects();

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

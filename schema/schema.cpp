// Finds objects and template rows among the embedded files.
#include "schema/schema.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "schema/embedded.h"

namespace schema {

namespace {

constexpr std::string_view templates_folder = "templates/";

bool is_template(std::string_view path) { return path.starts_with(templates_folder); }

// "tables/D6601.sql" → "D6601".
std::string_view stem(std::string_view path) {
    path.remove_prefix(path.rfind('/') + 1);
    return path.substr(0, path.rfind('.'));
}

// "templates/four_digit/D6801.tsv" → "four_digit".
std::string_view template_of(std::string_view path) {
    path.remove_prefix(templates_folder.size());
    return path.substr(0, path.find('/'));
}

// "tables/D6601.sql" → "TABLE".
std::string_view kind_of(std::string_view path) {
    constexpr std::pair<std::string_view, std::string_view> kinds[] = {
        {"tables/", "TABLE"},         {"views/", "VIEW"},       {"functions/", "FUNCTION"},
        {"procedures/", "PROCEDURE"}, {"triggers/", "TRIGGER"}};
    for (const auto& [folder, kind] : kinds)
        if (path.starts_with(folder)) return kind;
    throw std::logic_error("an object of no kind: " + std::string(path));
}

// The line without its comment, blanks and the comma or semicolon at its end.
std::string_view bare_line(std::string_view line) {
    line = line.substr(0, line.find("--"));
    const std::size_t first = line.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return line.substr(first, line.find_last_not_of(" ,;") + 1 - first);
}

std::string_view word_behind(std::string_view text, std::string_view key) {
    text.remove_prefix(text.find(key) + key.size());
    return text.substr(0, text.find(' '));
}

std::vector<std::string> cells_of(std::string_view line) {
    std::vector<std::string> cells;
    for (std::size_t from = 0; from <= line.size();) {
        const std::size_t tab = std::min(line.find('\t', from), line.size());
        cells.emplace_back(line.substr(from, tab - from));
        from = tab + 1;
    }
    return cells;
}

// The first line names the columns, every other line is a row.
TemplateTable parse(const EmbeddedFile& file) {
    TemplateTable table{std::string(stem(file.path)), {}, {}};
    for (std::string_view rest = file.text; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        auto cells = cells_of(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (table.columns.empty()) {
            table.columns = std::move(cells);
            continue;
        }
        if (cells.size() != table.columns.size())
            throw std::logic_error("template row with a wrong number of cells: " +
                                   std::string(file.path) + ": " + cells.front());
        table.rows.push_back(std::move(cells));
    }
    return table;
}

} // namespace

std::vector<Object> objects() {
    std::vector<Object> all;
    for (const EmbeddedFile& file : embedded_files())
        if (!is_template(file.path))
            all.push_back({stem(file.path), file.text, kind_of(file.path)});
    return all;
}

std::string_view definition_of(std::string_view text) {
    if (!text.starts_with("CREATE ")) text.remove_prefix(text.find("\nCREATE ") + 1);
    return text.substr(0, text.find_last_not_of(" \r\n;") + 1);
}

TableParts parts_of(const Object& table) {
    TableParts parts;
    for (std::string_view rest = table.text; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view line = bare_line(rest.substr(0, end));
        const bool inside = rest.starts_with("    ");
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (line.starts_with("CREATE ") && !line.starts_with("CREATE TABLE "))
            parts.indexes.push_back({word_behind(line, "INDEX "), line});
        else if (inside && !line.empty() && !line.starts_with("CONSTRAINT "))
            parts.columns.push_back({word_behind(line, ""), line});
    }
    return parts;
}

std::vector<std::string> template_names() {
    std::vector<std::string> names;
    for (const EmbeddedFile& file : embedded_files())
        if (is_template(file.path) &&
            (names.empty() || names.back() != template_of(file.path)))
            names.emplace_back(template_of(file.path));
    return names;
}

std::vector<TemplateTable> template_tables(std::string_view name) {
    std::vector<TemplateTable> tables;
    for (const EmbeddedFile& file : embedded_files())
        if (is_template(file.path) && template_of(file.path) == name)
            tables.push_back(parse(file));
    return tables;
}

} // namespace schema

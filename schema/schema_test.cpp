// The embedded objects and templates.
#include "schema/schema.h"

#include <algorithm>
#include <map>
#include <set>
#include <gtest/gtest.h>

#include "schema/log_chain.h"

namespace schema {
namespace {

const TemplateTable& table(const std::vector<TemplateTable>& tables, const std::string& name) {
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const TemplateTable& t) { return t.name == name; });
    if (found == tables.end()) throw std::out_of_range(name);
    return *found;
}

std::size_t column(const TemplateTable& table, const std::string& name) {
    const auto found = std::find(table.columns.begin(), table.columns.end(), name);
    if (found == table.columns.end()) throw std::out_of_range(name);
    return static_cast<std::size_t>(found - table.columns.begin());
}

std::map<std::string, std::vector<std::string>> chart() {
    const auto tables = template_tables(default_template);
    std::map<std::string, std::vector<std::string>> rows;
    for (const auto& row : table(tables, "D6801").rows) rows[row[0]] = row;
    return rows;
}

} // namespace

TEST(SchemaObjects, an_object_is_created_under_the_name_of_its_file) {
    ASSERT_FALSE(objects().empty());
    for (const Object& object : objects()) {
        const std::size_t create = object.text.find("\nCREATE ");
        ASSERT_NE(create, std::string_view::npos) << object.name;
        EXPECT_NE(object.text.find(" " + std::string(object.name) + " ", create),
                  std::string_view::npos)
            << object.name;
    }
}

// Books tell by the number whether a program is older than they are.
TEST(SchemaObjects, the_version_rises_whenever_an_object_changes) {
    std::string all;
    for (const Object& object : objects())
        all += std::string(object.name) + ":" + std::string(definition_of(object.text)) + "\n";
    EXPECT_EQ(std::to_string(version) + " " + digest_of(all).substr(0, 16), "5 2fe48e9d43303fa3")
        << "an object of schema/ has changed: count schema::version up by one, and put the number "
           "and the digest seen here into this test";
}

TEST(SchemaObjects, a_definition_begins_with_create_and_ends_with_its_last_word) {
    EXPECT_EQ(definition_of("-- above; CREATE\nCREATE VIEW V AS SELECT 1 A;\n\n"),
              "CREATE VIEW V AS SELECT 1 A");
    EXPECT_EQ(definition_of("CREATE VIEW V AS SELECT 1 A"), "CREATE VIEW V AS SELECT 1 A");
}

TEST(SchemaObjects, a_table_is_its_columns_and_indexes) {
    const auto all = objects();
    const auto heads = std::find_if(all.begin(), all.end(),
                                    [](const Object& object) { return object.name == "D6601"; });
    ASSERT_NE(heads, all.end());
    const TableParts parts = parts_of(*heads);
    ASSERT_EQ(parts.columns.size(), 12u);
    EXPECT_EQ(parts.columns[4].name, "PZZ_Z");
    EXPECT_EQ(parts.columns[4].text, "PZZ_Z int NOT NULL DEFAULT 0");
    ASSERT_EQ(parts.indexes.size(), 1u);
    EXPECT_EQ(parts.indexes[0].name, "IX_D6601_BDATE");
    EXPECT_EQ(parts.indexes[0].text, "CREATE INDEX IX_D6601_BDATE ON D6601 (BDATE)");
}

TEST(SchemaTemplates, the_default_template_exists_and_an_unknown_one_is_empty) {
    const auto names = template_names();
    EXPECT_TRUE(std::count(names.begin(), names.end(), default_template));
    EXPECT_TRUE(template_tables("no such").empty());
}

TEST(SchemaTemplates, the_fixed_accounts_are_in_the_chart) {
    const auto rows = chart();
    for (const char* code : {"1001", "1002", "1009", "3131", "3141", "314115", "5801"})
        EXPECT_TRUE(rows.contains(code)) << code;
}

TEST(SchemaTemplates, an_account_stands_below_its_parent_in_level_category_and_code) {
    const auto rows = chart();
    const auto tables = template_tables(default_template);
    const TemplateTable& accounts = table(tables, "D6801");
    const std::size_t oid = column(accounts, "OID"), level = column(accounts, "KM_J"),
                      kind = column(accounts, "KM_FL"), cash = column(accounts, "KM_K");
    for (const auto& [code, row] : rows) {
        if (row[oid] == "Z") {
            EXPECT_EQ(row[level], "1") << code;
            EXPECT_EQ(code.size(), 4u) << code;
            EXPECT_EQ(code.substr(0, 1), row[kind]) << code;
        } else {
            ASSERT_TRUE(rows.contains(row[oid])) << code;
            const auto& parent = rows.at(row[oid]);
            EXPECT_EQ(std::stoi(row[level]), std::stoi(parent[level]) + 1) << code;
            EXPECT_EQ(row[kind], parent[kind]) << code;
            EXPECT_TRUE(code.starts_with(row[oid])) << code;
        }
        // Only the cash and bank accounts take part in the cash-flow allocation.
        EXPECT_EQ(row[cash] == "1", code < "1010") << code;
    }
}

TEST(SchemaTemplates, cash_flow_items_form_a_tree_of_three_levels) {
    const auto tables = template_tables(default_template);
    const TemplateTable& items = table(tables, "D6820");
    const std::size_t oid = column(items, "OID");
    std::map<std::string, std::string> parent_of;
    for (const auto& row : items.rows) parent_of[row[0]] = row[oid];
    int leaves = 0;
    for (const auto& [id, parent] : parent_of) {
        if (parent == "ZZZ" || parent_of.at(parent) == "ZZZ") continue;
        EXPECT_EQ(parent_of.at(parent_of.at(parent)), "ZZZ") << id;
        ++leaves;
    }
    EXPECT_GT(leaves, 20);
}

TEST(SchemaTemplates, statement_definitions_have_unique_lines_and_three_layouts) {
    const auto tables = template_tables(default_template);
    for (const char* name : {"D6830", "D6831", "D6832"}) {
        const TemplateTable& definition = table(tables, name);
        std::set<std::string> ids, layouts;
        for (const auto& row : definition.rows) {
            EXPECT_TRUE(ids.insert(row[0]).second) << name << row[0];
            if (std::string(name) != "D6831") layouts.insert(row[column(definition, "G")]);
        }
        if (std::string(name) != "D6831") {
            EXPECT_EQ(layouts, (std::set<std::string>{"1", "2", "3"})) << name;
        }
    }
}

} // namespace schema

// Every statement the forms send, with sample values, is compiled against the full schema, and so
// is the body of every object of the schema.
#include "schema/schema.h"
#include "tests/support/case_file.h"
#include "tests/support/schema_catalog.h"
#include "tsql/parser/parser.h"

#include <gtest/gtest.h>

namespace {

class Statements : public testing::Test {
protected:
    Statements() { support::fill_catalog(catalog_); }

    tsql::Catalog catalog_;
    tsql::Compiler compiler_{catalog_, {}};
};

std::string parse_refusal(std::string_view text) {
    try {
        tsql::parse(text);
    } catch (const tsql::Refusal& refusal) {
        return std::to_string(refusal.number) + " " + tsql::diagnose(text, refusal).text();
    }
    return "";
}

TEST(SchemaTexts, each_object_of_the_database_is_read) {
    for (const schema::Object& object : schema::objects())
        EXPECT_EQ(parse_refusal(object.text), "") << object.name;
}

TEST_F(Statements, each_statement_of_the_forms_is_compiled) {
    std::size_t count = 0;
    for (const std::string& path :
         support::files_below(std::string(ZF_SOURCE_DIR) + "/tests/tsql/statements", ".case")) {
        for (const support::Case& one : support::read_case_file(path, {}).cases) {
            EXPECT_EQ(support::compile_refusal(compiler_, one.text), "")
                << path << ":" << one.line << "\n"
                << one.text;
            ++count;
        }
    }
    EXPECT_GT(count, 150U);
}

TEST_F(Statements, each_routine_of_the_schema_is_compiled) {
    for (const auto& [name, object] : catalog_.objects()) {
        if (dynamic_cast<const tsql::CatalogModule*>(object.get()) == nullptr) continue;
        try {
            compiler_.routine(name);
        } catch (const tsql::Refusal& refusal) {
            ADD_FAILURE() << name << ": " << refusal.number << " " << refusal.what();
        }
    }
}

} // namespace

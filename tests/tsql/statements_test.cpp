// Every statement the forms send, with sample values, and every object of the database, is read.
#include "schema/schema.h"
#include "tests/support/case_file.h"
#include "tsql/parser/parser.h"
#include "tsql/source/diagnostic.h"

#include <gtest/gtest.h>

namespace {

std::string refusal_of(std::string_view text) {
    try {
        tsql::parse(text);
    } catch (const tsql::Refusal& refusal) {
        return std::to_string(refusal.number) + " " + tsql::diagnose(text, refusal).text();
    }
    return "";
}

TEST(Statements, each_statement_of_the_forms_is_read) {
    std::size_t count = 0;
    for (const std::string& path :
         support::files_below(std::string(ZF_SOURCE_DIR) + "/tests/tsql/statements", ".case")) {
        for (const support::Case& one : support::read_case_file(path, {}).cases) {
            EXPECT_EQ(refusal_of(one.text), "") << path << ":" << one.line;
            ++count;
        }
    }
    EXPECT_GT(count, 150U);
}

TEST(Statements, each_object_of_the_database_is_read) {
    for (const schema::Object& object : schema::objects())
        EXPECT_EQ(refusal_of(object.text), "") << object.name;
}

} // namespace

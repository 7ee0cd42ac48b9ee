// From T-SQL to plans: texts with their SQL, types and refusals; what the cache shares.
#include "tsql/compiler.h"

#include "tests/support/case_file.h"
#include "tsql/plan/plan_text.h"

#include <gtest/gtest.h>

namespace tsql {
namespace {

constexpr const char* small_books[] = {
    "CREATE TABLE D6601 (NOID varchar(30) NOT NULL PRIMARY KEY, PZQJ varchar(7), PZZ varchar(10), "
    "PZZ_H int, BDATE datetime, T int DEFAULT 0, D int DEFAULT 0)",
    "CREATE TABLE D6601A (NOID varchar(30) NOT NULL, ZY nvarchar(50), KM_ID varchar(50), "
    "J decimal(18,2), D decimal(18,2), INX int)",
    "CREATE TABLE D6602 (QJ varchar(7), KM_ID varchar(50), INX int, J decimal(18,2) DEFAULT 0, "
    "D decimal(18,2) DEFAULT 0)",
    "CREATE TABLE D6801 (KM_ID varchar(50) NOT NULL PRIMARY KEY, KM_NAME varchar(100), "
    "FX varchar(2), OID varchar(50), BEGIN1 float)",
    "CREATE VIEW V6801 AS SELECT A.*, A.KM_ID+' '+A.KM_NAME AS KM_NAME_NEW, CASE WHEN EXISTS "
    "(SELECT 1 FROM D6801 B WHERE B.OID=A.KM_ID) THEN 0 ELSE 1 END AS ISEND FROM D6801 A",
    "CREATE TABLE N (ID int IDENTITY(1,1), A decimal(18,2), C decimal(18,4), W decimal(38,6), "
    "I int, M money, F float, B bit, E AS A*I)",
    "CREATE TABLE H (NOID varchar(10) PRIMARY KEY, SUMM decimal(9,2))",
    "CREATE TABLE L (NOID varchar(10), MONEY decimal(9,2))",
    "CREATE TRIGGER TRL ON L AFTER INSERT, UPDATE, DELETE AS UPDATE H SET SUMM=0",
    "CREATE FUNCTION dbo.FASC(@k int, @a varchar(50)) RETURNS decimal(18,2) AS BEGIN RETURN "
    "(SELECT SUM(J) FROM D6602 WHERE INX=@k AND KM_ID=@a) END",
};

void apply(const CompiledBatch& batch, Catalog& catalog) {
    for (const CompiledUnit& unit : batch.units) {
        for (const Step& step : unit.plan->steps) {
            catalog.apply(std::get<Ddl>(step.action).change);
        }
    }
}

struct Books {
    Books() {
        for (const char* text : small_books) {
            apply(compiler.compile(text), catalog);
        }
    }
    Catalog catalog;
    Compiler compiler{catalog, {}};
};

int refusal_of(Compiler& compiler, const std::string& text) {
    try {
        compiler.compile(text);
    } catch (const Refusal& refusal) {
        return refusal.number;
    }
    return 0;
}

support::Outcome outcome_of(const std::string& text) {
    Books books;
    try {
        std::string shown;
        for (const CompiledUnit& unit : books.compiler.compile(text).units) {
            shown += plan_text(*unit.plan);
        }
        return {"sqlite", shown};
    } catch (const Refusal& refusal) {
        const Diagnostic seen = diagnose(text, refusal);
        const std::string sentence = seen.text();
        const std::size_t blank = sentence.find(' ');
        return {"refused", sentence.substr(0, blank) + " (" + std::to_string(seen.number) + ")" +
                               sentence.substr(blank)};
    }
}

TEST(Compiler, makes_of_every_text_of_the_case_files_what_stands_there) {
    support::check_case_files(
        support::files_below(std::string(ZF_SOURCE_DIR) + "/tsql/emit/sqlite/cases", ".case"),
        {"sqlite", "refused"}, outcome_of);
}

TEST(Compiler, statements_that_differ_in_literals_only_share_a_plan) {
    Books books;
    const auto first = books.compiler.compile("UPDATE D6602 SET J='1.50' WHERE QJ='2024-03'");
    const auto second = books.compiler.compile("UPDATE D6602 SET J='999' WHERE QJ='2025-12'");
    EXPECT_EQ(first.units[0].plan, second.units[0].plan);
    EXPECT_EQ(second.units[0].literals[0].text, "999");
    EXPECT_EQ(second.units[0].literals[1].text, "2025-12");
}

TEST(Compiler, the_statements_of_a_batch_are_found_again_one_by_one) {
    Books books;
    const std::string line = "INSERT INTO D6601A (NOID,J,INX) VALUES ('v','1.00',0);";
    books.compiler.compile(line);
    const auto before = books.compiler.statistics();
    const auto batch = books.compiler.compile(line + line + line);
    EXPECT_EQ(batch.units.size(), 3U);
    EXPECT_EQ(books.compiler.statistics().hits, before.hits + 3);
    EXPECT_EQ(books.compiler.statistics().misses, before.misses);
}

TEST(Compiler, a_literal_that_decides_the_plan_is_not_shared) {
    Books books;
    const auto by_first = books.compiler.compile("SELECT QJ, KM_ID FROM D6602 ORDER BY 1");
    const auto by_second = books.compiler.compile("SELECT QJ, KM_ID FROM D6602 ORDER BY 2");
    EXPECT_NE(plan_text(*by_first.units[0].plan), plan_text(*by_second.units[0].plan));
    const auto again = books.compiler.compile("SELECT QJ, KM_ID FROM D6602 ORDER BY 2");
    EXPECT_EQ(by_second.units[0].plan, again.units[0].plan);
}

TEST(Compiler, a_group_by_literal_of_another_value_is_tested_anew) {
    Books books;
    EXPECT_EQ(refusal_of(books.compiler,
                         "SELECT LEFT(KM_ID,4) FROM D6602 GROUP BY LEFT(KM_ID,4)"), 0);
    EXPECT_EQ(refusal_of(books.compiler,
                         "SELECT LEFT(KM_ID,3) FROM D6602 GROUP BY LEFT(KM_ID,4)"), 8120);
}

TEST(Compiler, a_definition_makes_plans_stale) {
    Books books;
    const std::string query = "SELECT * FROM H";
    const auto before = books.compiler.compile(query);
    apply(books.compiler.compile("ALTER TABLE H ADD NOTE varchar(10) NULL"), books.catalog);
    const auto after = books.compiler.compile(query);
    EXPECT_EQ(std::get<SqlQuery>(before.units[0].plan->steps[0].action).columns.size(), 2U);
    EXPECT_EQ(std::get<SqlQuery>(after.units[0].plan->steps[0].action).columns.size(), 3U);
}

TEST(Compiler, a_table_that_is_missing_is_refused_when_its_statement_is_reached) {
    Books books;
    const auto batch = books.compiler.compile("DELETE FROM H; DELETE FROM NOPE");
    ASSERT_EQ(batch.units.size(), 2U);
    const auto& step = std::get<DeferredStep>(batch.units[1].plan->steps[0].action);
    try {
        books.compiler.compile_deferred(*step.statement);
        FAIL() << "a missing table was accepted";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.number, 208);
    }
}

TEST(Compiler, nothing_of_a_batch_is_planned_when_its_last_statement_is_no_sentence) {
    Books books;
    const std::string text = "DELETE FROM H;\nUPDATE H SET SUMM=;";
    try {
        books.compiler.compile(text);
        FAIL() << "a broken statement was accepted";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(diagnose(text, refusal).line, 2);
    }
}

TEST(Compiler, each_piece_knows_its_line_and_column_in_the_batch) {
    Books books;
    const std::string text = "DELETE FROM H; DELETE FROM L WHERE NOID='中\n文';DELETE\r\nFROM H;"
                             "\n\n  DELETE FROM L;\rDELETE FROM H";
    const CompiledBatch batch = books.compiler.compile(text);
    std::size_t from = 0;
    for (const CompiledUnit& unit : batch.units) {
        from = text.find("DELETE", from);
        EXPECT_EQ(unit.at, locate(text, static_cast<std::uint32_t>(from))) << from;
        ++from;
    }
    EXPECT_EQ(batch.units.size(), 5U);
    EXPECT_EQ(batch.units.back().at, (LineColumn{6, 1})); // five breaks before it
}

TEST(Compiler, a_table_comes_back_as_it_was_from_what_is_kept_of_it) {
    Books books;
    for (const auto& [name, object] : books.catalog.objects()) {
        const auto loaded = Compiler::load(Catalog::store(*object));
        EXPECT_EQ(loaded->definition, object->definition);
        const auto* before = dynamic_cast<const CatalogTable*>(object.get());
        const auto* after = dynamic_cast<const CatalogTable*>(loaded.get());
        ASSERT_EQ(before == nullptr, after == nullptr);
        for (std::size_t i = 0; before != nullptr && i < before->columns.size(); ++i) {
            EXPECT_EQ(after->columns[i].name, before->columns[i].name);
            EXPECT_EQ(after->columns[i].type, before->columns[i].type);
            EXPECT_EQ(after->columns[i].nullable, before->columns[i].nullable);
        }
    }
}

TEST(Compiler, a_rolled_back_definition_leaves_the_catalogue_as_it_was) {
    Books books;
    const Catalog::State before = books.catalog.state();
    apply(books.compiler.compile("CREATE TABLE Q (A int)"), books.catalog);
    EXPECT_NE(books.catalog.find_table("q"), nullptr);
    books.catalog.restore(before);
    EXPECT_EQ(books.catalog.find_table("q"), nullptr);
}

} // namespace
} // namespace tsql

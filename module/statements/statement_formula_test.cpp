// A formula's query, and what in it is more than an expression.
#include "module/statements/statement_formula.h"

#include "module/statements/U6671.h"

namespace module {
namespace {

TEST(StatementFormula, becomes_one_query_with_a_blank_at_its_end) {
    EXPECT_EQ(
        cell_query("fasc(期末,'1001','1009')-fd(年初,3)", balance_sheet.words, {"2016-06", 2}),
        "select dbo.fasc(0,'2016-06','1001','1009')-dbo.fd(2,1,'2016-00',3) as a ");
    EXPECT_EQ(cell_query("12.5*(3+4)", balance_sheet.words, {"2016-06", 1}),
              "select 12.5*(3+4) as a ");
}

TEST(StatementFormula, looks_at_lines_when_it_names_a_function_of_lines) {
    EXPECT_TRUE(refers_to_lines("fd(期末,1)"));
    EXPECT_TRUE(refers_to_lines("1+fsum(期末,1,2)"));
    EXPECT_TRUE(refers_to_lines("fasc(期末,'1','2')+fd(期末,1)"));
    EXPECT_FALSE(refers_to_lines("fasc(期末,'1','2')"));
    EXPECT_FALSE(refers_to_lines("FD(期末,1)")); // capitals are another word
    EXPECT_FALSE(refers_to_lines(""));
}

TEST(StatementFormula, reckons_and_does_nothing_else) {
    struct Query {
        const char* text;
        const char* alien; // "" for an expression
    };
    const Query queries[] = {
        {"select dbo.fasc(0,'2016-06','1001','1009') as a ", ""},
        {"select (select a4 from d6831 where id=1)+2 as a ", ""},
        {"select case when 1>0 then 2 else 3 end as a ", ""},
        {"select 'delete; --'+[update]+\"drop\" as a ", ""},
        {"select isnull(1,2) - -1 as a ", ""},
        {"select 'it''s' as a ", ""},
        {"select 1 as a;delete from d6801 as a ", ";"},
        {"select 1 as a delete from d6801 as a ", "delete"},
        {"select 1 as a Exec x as a ", "Exec"},
        {"select 1 into x as a ", "into"},
        {"select 1) as a drop table x as a ", "drop"},
        {"select 1--1 as a ", "--"},
        {"select 1/*(*/ as a ", "/*"},
        {"select '1,'2016-00'' update x as a ", "update"},
    };
    for (const Query& query : queries)
        EXPECT_EQ(what_is_no_expression(query.text), query.alien) << query.text;
}

} // namespace
} // namespace module

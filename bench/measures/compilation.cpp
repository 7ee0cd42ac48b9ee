// Compiling statements: cold, as the first of its shape, and cached, as one that differs only in
// its literals.
#include <string>

#include "bench/measures/all.h"
#include "module/ledgers/trial_balance_query.h"
#include "module/vouchers/posting_batch.h"
#include "schema/schema.h"
#include "tsql/compiler.h"

namespace bench {

namespace {

void apply_definitions(const tsql::Steps& steps, tsql::Catalog& catalog) {
    for (const tsql::Step& step : steps)
        if (const auto* definition = std::get_if<tsql::Ddl>(&step.action))
            catalog.apply(definition->change);
}

// The catalogue of empty books, made from the definitions alone.
void define_schema(tsql::Catalog& catalog) {
    for (const schema::Object& object : schema::objects()) {
        tsql::Compiler compiler(catalog, {});
        for (const tsql::CompiledUnit& unit : compiler.compile(object.text).units)
            apply_definitions(unit.plan->steps, catalog);
    }
}

std::string line_insert(int number) {
    return "INSERT INTO D6601A (NOID, ZY, KM_ID, J, D, INX)  VALUES ('2024-03记" +
           std::to_string(number) +
           "','收到货款','1002','            100.00','              0.00',0);";
}

// A few statements of different shapes: what a form sends on an ordinary day.
std::vector<std::string> shapes(const BigBooks& books) {
    return {line_insert(1),
            "SELECT * FROM ( SELECT 1 AS I  UNION ALL SELECT MAX(PZZ_H)+1 AS I  FROM D6601 WHERE "
            "(PZQJ = '2024-03') AND (PZZ = '记')) A ORDER BY I DESC ",
            "SELECT D6601A.*, V6801.KM_NAME_NEW, V6801.KM_K FROM D6601A INNER JOIN V6801 ON "
            "D6601A.KM_ID = V6801.KM_ID  WHERE (NOID ='2024-03记001') ORDER BY INX",
            module::trial_balance_query(books.last, 3)};
}

} // namespace

std::vector<Row> compilation(const BigBooks& books) {
    tsql::Catalog catalog;
    define_schema(catalog);
    const std::vector<std::string> texts = shapes(books);
    constexpr int repeats = 50;
    Row cold = measure_ours("compiling a statement, cold (mean of four shapes)", 9,
                            {[&] {
                                for (int i = 0; i < repeats; ++i) {
                                    tsql::Compiler compiler(catalog, {});
                                    for (const std::string& text : texts) compiler.compile(text);
                                }
                            }},
                            repeats * int(texts.size()));
    cold.budget_ms = 1;
    Row query = measure_ours("compiling the trial balance query, cold", 9,
                             {[&] {
                                 for (int i = 0; i < repeats; ++i)
                                     tsql::Compiler(catalog, {}).compile(texts.back());
                             }},
                             repeats);
    query.budget_ms = 1;
    tsql::Compiler warm(catalog, {});
    int number = 0;
    Row cached = measure_ours("compiling a voucher line, cached", 9,
                              {[&] {
                                  for (int i = 0; i < 1000; ++i)
                                      warm.compile(line_insert(++number));
                              }},
                              1000);
    cached.budget_ms = 0.010;
    return {cold, query, cached};
}

} // namespace bench

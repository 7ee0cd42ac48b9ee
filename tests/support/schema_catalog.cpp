// Runs the definitions of the schema in the catalogue alone.
#include "tests/support/schema_catalog.h"

#include "schema/schema.h"

namespace support {

namespace {

// The definitions of a plan in order; a deferred one is bound now that what it needs is there.
void apply(tsql::Catalog& catalog, tsql::Compiler& compiler, const std::vector<tsql::Step>& steps) {
    for (const tsql::Step& step : steps) {
        if (const auto* definition = std::get_if<tsql::Ddl>(&step.action))
            catalog.apply(definition->change);
        if (const auto* later = std::get_if<tsql::DeferredStep>(&step.action))
            apply(catalog, compiler, compiler.compile_deferred(*later->statement)->steps);
    }
}

} // namespace

void fill_catalog(tsql::Catalog& catalog) {
    tsql::Compiler compiler(catalog, {});
    for (const schema::Object& object : schema::objects()) {
        try {
            for (const tsql::CompiledUnit& unit : compiler.compile(object.text).units)
                apply(catalog, compiler, unit.plan->steps);
        } catch (const tsql::Refusal& refusal) {
            throw tsql::Refusal(refusal.number, refusal.at,
                                std::string(object.name) + ": " + refusal.what());
        }
    }
}

std::string compile_refusal(tsql::Compiler& compiler, std::string_view text) {
    try {
        for (const tsql::CompiledUnit& unit : compiler.compile(text).units)
            for (const tsql::Step& step : unit.plan->steps)
                if (const auto* later = std::get_if<tsql::DeferredStep>(&step.action))
                    compiler.compile_deferred(*later->statement);
    } catch (const tsql::Refusal& refusal) {
        return std::to_string(refusal.number) + " " + tsql::diagnose(text, refusal).text();
    }
    return "";
}

} // namespace support

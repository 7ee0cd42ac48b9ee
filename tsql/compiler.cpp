// Batches to pieces, pieces to plans, by way of the cache; routines by name.
#include "tsql/compiler.h"

#include "tsql/binder/table_builder.h"
#include "tsql/cache/plan_cache.h"
#include "tsql/cache/unit.h"
#include "tsql/lexer/lexer.h"
#include "tsql/lexer/normal_form.h"
#include "tsql/parser/parser.h"
#include "tsql/planner/planner.h"

#include <algorithm>
#include <span>

namespace tsql {

namespace {

// Where pieces begin, each counted on from the one before.
class Places {
public:
    explicit Places(std::string_view text) : text_(text) {}
    LineColumn of(std::uint32_t offset) {
        const LineColumn further = locate(text_.substr(offset_), offset - offset_);
        place_.column = further.line > 1 ? further.column : place_.column + further.column - 1;
        place_.line += further.line - 1;
        offset_ = offset;
        return place_;
    }

private:
    std::string_view text_;
    std::uint32_t offset_ = 0;
    LineColumn place_;
};

bool asks_for_counts(std::string_view text, const std::vector<Token>& tokens) {
    return std::any_of(tokens.begin(), tokens.end(), [&](const Token& token) {
        return token.kind == TokenKind::SystemVariable &&
               same_name(token.at.text(text), "@@ROWCOUNT");
    });
}

Refusal moved(const Refusal& refusal, std::uint32_t by) {
    SourceRange at = refusal.at;
    at.begin += by;
    at.end += by;
    return {refusal.number, at, refusal.what()};
}

// A table from the text table_text wrote: CREATE TABLE, then its indexes.
std::shared_ptr<const CatalogTable> load_table(const std::string& name,
                                               const std::string& definition) {
    const Batch batch = parse(definition);
    auto table = std::make_shared<CatalogTable>(name, definition);
    table->stored_name = name;
    Catalog none;
    Variables variables;
    Literals literals;
    literals.of_text = false;
    BindContext bind{none, variables, literals, {}, false, 1, {}, {}, {}, {}};
    Binder binder(bind);
    for (const StatementPtr& statement : batch.statements) {
        if (const auto* create = as_if<CreateTable>(statement.get())) {
            TableBuilder(binder, *table, definition, true).add(create->definition);
            continue;
        }
        const auto& index = as<CreateIndex>(*statement);
        CatalogIndex made;
        made.name = index.name.text;
        made.unique = index.unique;
        for (const IndexColumn& column : index.columns) {
            made.columns.push_back(table->find_column(column.name.text));
            made.descending.push_back(column.descending);
        }
        if (index.where) {
            made.filter = std::string(index.where->at.text(definition));
        }
        table->indexes.push_back(std::move(made));
    }
    return table;
}

} // namespace

struct Compiler::Parts {
    Parts(Catalog& its_catalog, CompilerOptions its_options)
        : catalog(its_catalog), options(its_options), cache(its_options.cached_plans) {}

    Catalog& catalog;
    CompilerOptions options;
    PlanCache cache;
    std::vector<Token> tokens; // of the text being compiled
    Statistics statistics;
    std::map<std::string, std::shared_ptr<const CompiledRoutine>, NameLess> routines;
    std::uint64_t routines_version = 0;

    struct Planned {
        std::shared_ptr<const Plan> plan;
        std::set<int> pinned;
        bool changes_catalog = false;
        bool deferred = false;
    };

    Planned plan_unit(std::string_view text, int literal_count, bool exact, bool after_definition);
    std::shared_ptr<const CompiledRoutine> compile_routine(const CatalogModule& module);
    std::shared_ptr<CompiledRoutine> routine_of(Planner& planner, Variables& variables,
                                                Literals& literals,
                                                const std::vector<Parameter>& parameters);
};

Compiler::Compiler(Catalog& catalog, CompilerOptions options)
    : parts_(std::make_unique<Parts>(catalog, options)) {}

Compiler::~Compiler() = default;

Compiler::Statistics Compiler::statistics() const {
    return parts_->statistics;
}

Compiler::Parts::Planned Compiler::Parts::plan_unit(std::string_view text, int literal_count,
                                                    bool exact, bool after_definition) {
    auto owned = std::make_shared<const std::string>(text);
    auto tree = std::make_shared<const Batch>(parse(*owned));
    Variables variables;
    Literals literals;
    Planner planner(catalog, variables, literals);
    planner.exact_row_counts = exact || options.exact_row_counts;
    planner.tree = tree;
    planner.text = owned;
    planner.changes_catalog = after_definition;
    auto plan = std::make_shared<Plan>();
    planner.plan_all(tree->statements, plan->steps);
    plan->variables = std::move(variables.slots);
    plan->constants = std::move(literals.constants);
    plan->catalog_version = catalog.version();
    Planned planned{plan, std::move(literals.pinned), planner.changes_catalog, planner.deferred};
    for (int i = 0; i < literal_count; ++i) {
        if (!planner.passed.contains(i)) {
            planned.pinned.insert(i);
        }
    }
    return planned;
}

CompiledBatch Compiler::compile(std::string_view text) {
    Parts& parts = *parts_;
    std::vector<Token>& tokens = parts.tokens;
    tokenize(text, tokens);
    const bool exact = parts.options.exact_row_counts || asks_for_counts(text, tokens);
    CompiledBatch batch;
    bool after_definition = false;
    Places places(text);
    for (const Unit& unit : units_of(tokens)) {
        const std::span<const Token> own(tokens.data() + unit.first, unit.last - unit.first);
        NormalForm form = normal_form(text, own);
        form.key += exact ? "\nexact" : "";
        CompiledUnit compiled;
        compiled.literals.reserve(form.literals.size());
        for (TakenLiteral& literal : form.literals) {
            compiled.literals.push_back({literal_kind(literal.kind), std::move(literal.text)});
        }
        const std::uint32_t begin = own.front().at.begin;
        compiled.at = places.of(begin);
        if (!after_definition) {
            compiled.plan = parts.cache.find(form.key, compiled.literals, parts.catalog.version());
        }
        if (compiled.plan) {
            ++parts.statistics.hits;
            batch.units.push_back(std::move(compiled));
            continue;
        }
        ++parts.statistics.misses;
        const std::string_view piece = text.substr(begin, own.back().at.end - begin);
        Parts::Planned planned;
        try {
            planned = parts.plan_unit(piece, static_cast<int>(compiled.literals.size()), exact,
                                      after_definition);
        } catch (const Refusal& refusal) {
            throw moved(refusal, begin);
        }
        compiled.plan = planned.plan;
        after_definition = after_definition || planned.changes_catalog;
        if (!planned.deferred && !planned.changes_catalog) {
            parts.cache.keep(form.key, compiled.literals, std::move(planned.pinned), planned.plan);
        }
        batch.units.push_back(std::move(compiled));
    }
    return batch;
}

std::shared_ptr<const Plan> Compiler::compile_deferred(const DeferredStatement& statement) {
    Variables variables = statement.variables;
    Literals literals;
    literals.of_text = statement.literals_of_text;
    Planner planner(parts_->catalog, variables, literals);
    planner.surroundings = statement.surroundings;
    planner.exact_row_counts = statement.exact_row_counts;
    planner.tree = statement.tree;
    planner.text = statement.text;
    auto plan = std::make_shared<Plan>();
    planner.plan(*statement.statement, plan->steps, false);
    plan->variables = std::move(variables.slots);
    plan->constants = std::move(literals.constants);
    plan->catalog_version = parts_->catalog.version();
    return plan;
}

std::shared_ptr<CompiledRoutine>
Compiler::Parts::routine_of(Planner& planner, Variables& variables, Literals& literals,
                            const std::vector<Parameter>& parameters) {
    auto routine = std::make_shared<CompiledRoutine>();
    literals.of_text = false;
    for (const Parameter& parameter : parameters) {
        const Type type = planner.type_of(parameter.type, 1);
        planner.declare(parameter.name, type, parameter.at);
        RoutineParameter known;
        known.name = parameter.name;
        known.type = type;
        known.output = parameter.output;
        if (parameter.default_value) {
            known.default_value = planner.value_text(*parameter.default_value, &type);
        }
        routine->parameters.push_back(std::move(known));
    }
    (void)variables;
    return routine;
}

std::shared_ptr<const CompiledRoutine>
Compiler::Parts::compile_routine(const CatalogModule& module) {
    const Statement& syntax = module.syntax();
    Variables variables;
    variables.owner = fold_name(module.name);
    Literals literals;
    Planner planner(catalog, variables, literals);
    planner.exact_row_counts = true;
    planner.tree = module.tree();
    planner.text = std::make_shared<const std::string>(module.definition);
    auto plan = std::make_shared<Plan>();
    std::shared_ptr<CompiledRoutine> routine;
    const std::vector<StatementPtr>* body = nullptr;
    if (const auto* procedure = as_if<CreateProcedure>(&syntax)) {
        routine = routine_of(planner, variables, literals, procedure->parameters);
        body = &procedure->body;
    } else if (const auto* function = as_if<CreateFunction>(&syntax)) {
        routine = routine_of(planner, variables, literals, function->parameters);
        planner.surroundings.in_function = true;
        if (function->type == FunctionKind::Scalar) {
            routine->return_type = planner.type_of(function->return_type, 1);
            planner.surroundings.return_type = routine->return_type;
        } else if (function->type == FunctionKind::MultiTable) {
            Step step;
            step.action = planner.declare_table(function->return_variable, function->return_table,
                                                module.definition);
            plan->steps.push_back(std::move(step));
        }
        body = &function->body;
    } else if (const auto* trigger = as_if<CreateTrigger>(&syntax)) {
        routine = routine_of(planner, variables, literals, {});
        planner.surroundings.trigger = module.name;
        planner.surroundings.instead_of = trigger->instead_of;
        planner.surroundings.trigger_table =
            catalog.find_table(static_cast<const CatalogTrigger&>(module).table);
        body = &trigger->body;
    } else {
        return nullptr;
    }
    planner.plan_all(*body, plan->steps);
    plan->variables = std::move(variables.slots);
    plan->constants = std::move(literals.constants);
    plan->catalog_version = catalog.version();
    routine->name = module.name;
    routine->plan = std::move(plan);
    return routine;
}

std::shared_ptr<const CompiledRoutine> Compiler::routine(std::string_view name) {
    Parts& parts = *parts_;
    if (parts.routines_version != parts.catalog.version()) {
        parts.routines.clear();
        parts.routines_version = parts.catalog.version();
    }
    const auto known = parts.routines.find(name);
    if (known != parts.routines.end()) {
        return known->second;
    }
    const auto module = std::dynamic_pointer_cast<const CatalogModule>(parts.catalog.find(name));
    if (!module || module->kind == CatalogKind::View) {
        return nullptr;
    }
    auto routine = parts.compile_routine(*module);
    parts.routines[std::string(name)] = routine;
    return routine;
}

std::shared_ptr<const CompiledRoutine>
Compiler::compile_with_parameters(std::string_view text, std::string_view declarations) {
    // The declarations are read as those of a procedure.
    const auto head = std::make_shared<const Batch>(
        parse("CREATE PROCEDURE p " + std::string(declarations) + " AS RETURN"));
    auto owned = std::make_shared<const std::string>(text);
    auto tree = std::make_shared<const Batch>(parse(*owned));
    Variables variables;
    Literals literals;
    Planner planner(parts_->catalog, variables, literals);
    planner.exact_row_counts = true;
    planner.tree = tree;
    planner.text = owned;
    const auto& parameters = as<CreateProcedure>(*head->statements.front()).parameters;
    auto routine = parts_->routine_of(planner, variables, literals, parameters);
    auto plan = std::make_shared<Plan>();
    planner.plan_all(tree->statements, plan->steps);
    plan->variables = std::move(variables.slots);
    plan->constants = std::move(literals.constants);
    plan->catalog_version = parts_->catalog.version();
    routine->name = "sp_executesql";
    routine->plan = std::move(plan);
    return routine;
}

std::shared_ptr<const CatalogObject> Compiler::load(const StoredObject& stored) {
    const auto kind = static_cast<CatalogKind>(stored.kind);
    constexpr std::string_view disabled = "--disabled\n";
    const bool off = std::string_view(stored.definition).starts_with(disabled);
    const std::string definition =
        off ? stored.definition.substr(disabled.size()) : stored.definition;
    if (kind == CatalogKind::Trigger) {
        auto trigger = std::make_shared<CatalogTrigger>(stored.name, definition);
        const auto& syntax = as<CreateTrigger>(trigger->syntax());
        trigger->table = syntax.table.object().text;
        trigger->instead_of = syntax.instead_of;
        trigger->on_insert = syntax.on_insert;
        trigger->on_update = syntax.on_update;
        trigger->on_delete = syntax.on_delete;
        trigger->disabled = off;
        return trigger;
    }
    if (kind != CatalogKind::Table) {
        return std::make_shared<CatalogModule>(kind, stored.name, definition);
    }
    return load_table(stored.name, definition);
}

} // namespace tsql

// Which statement is planned how, and which may wait until it is reached.
#include "tsql/planner/planner.h"

#include "tsql/emit/common/quote.h"
#include "tsql/emit/sqlite/definition.h"
#include "tsql/source/diagnostic.h"

namespace tsql {

namespace {

bool is_definition(StatementKind kind) {
    switch (kind) {
    case StatementKind::CreateTable:
    case StatementKind::AlterTable:
    case StatementKind::CreateIndex:
    case StatementKind::DropIndex:
    case StatementKind::Drop:
    case StatementKind::CreateView:
    case StatementKind::CreateFunction:
    case StatementKind::CreateProcedure:
    case StatementKind::CreateTrigger: return true;
    default: return false;
    }
}

bool holds_statements(StatementKind kind) {
    return kind == StatementKind::Block || kind == StatementKind::If ||
           kind == StatementKind::While || kind == StatementKind::Try;
}

// Errors that may be gone when the statement is reached: an object is missing now.
bool may_pass(int number) {
    return number == 208 || number == 4121 || number == 3701;
}

} // namespace

BindContext Planner::context() {
    return BindContext{catalog_, variables_, literals_, surroundings, exact_row_counts,
                       1,        {},         {},        {},           {}};
}

void Planner::add(const Statement&, decltype(Step::action) action, Steps& out) {
    Step step;
    step.at = at_;
    step.action = std::move(action);
    out.push_back(std::move(step));
}

std::string_view Planner::source(SourceRange at) const {
    return at.text(*text);
}

void Planner::plan_all(const std::vector<StatementPtr>& statements, Steps& out) {
    for (const StatementPtr& statement : statements) {
        plan(*statement, out, true);
    }
}

void Planner::plan(const Statement& statement, Steps& out, bool may_defer) {
    const bool definition = is_definition(statement.kind);
    at_ = text ? locate(*text, statement.at.begin) : LineColumn{};
    if (!may_defer) {
        plan_now(statement, out);
        return;
    }
    // After a definition nothing is certain about tables until it has run.
    const std::size_t before = out.size();
    const bool unsure = changes_catalog;
    const bool wait = unsure && !holds_statements(statement.kind) &&
                      (definition || statement.kind <= StatementKind::Truncate);
    if (!wait) {
        try {
            plan_now(statement, out);
            return;
        } catch (const Refusal& refusal) {
            if (!definition && !unsure && !may_pass(refusal.number)) {
                throw;
            }
        }
    }
    out.resize(before);
    auto kept = std::make_shared<DeferredStatement>();
    kept->tree = tree;
    kept->text = text;
    kept->statement = &statement;
    kept->variables = variables_;
    kept->surroundings = surroundings;
    kept->literals_of_text = literals_.of_text;
    kept->exact_row_counts = exact_row_counts;
    deferred = true;
    changes_catalog = changes_catalog || definition;
    add(statement, DeferredStep{std::move(kept)}, out);
}

void Planner::add_fills(BindContext& context, Steps& out) {
    Binder binder(context);
    for (const BoundFill& fill : context.fills) {
        FillFunctionTable step;
        step.function = fill.function;
        step.arguments = emitter().values(fill.arguments);
        if (fill.arguments.empty()) {
            step.arguments.text = "SELECT NULL";
        }
        const std::string copy = "temp." + quoted_name(fill.table->stored_name);
        step.create = sqlite::create_table(*fill.table, binder, true);
        step.clear = "DELETE FROM " + copy;
        step.insert = "INSERT INTO " + copy + " SELECT * FROM temp." + quoted_name(fill.source);
        Step whole;
        whole.at = at_;
        whole.action = std::move(step);
        out.push_back(std::move(whole));
    }
    context.fills.clear();
}

void Planner::plan_definition(const Statement& statement, Steps& out) {
    switch (statement.kind) {
    case StatementKind::CreateTable: create_table(as<CreateTable>(statement), out); break;
    case StatementKind::AlterTable: alter_table(as<AlterTable>(statement), out); break;
    case StatementKind::CreateIndex: create_index(as<CreateIndex>(statement), out); break;
    case StatementKind::DropIndex: drop_index(as<DropIndex>(statement), out); break;
    case StatementKind::Drop: drop(as<Drop>(statement), out); break;
    case StatementKind::CreateView: {
        const auto& view = as<CreateView>(statement);
        create_module(statement, CatalogKind::View, view.mode, view.name, out);
        break;
    }
    case StatementKind::CreateFunction: {
        const auto& function = as<CreateFunction>(statement);
        create_module(statement, CatalogKind::Function, function.mode, function.name, out);
        break;
    }
    case StatementKind::CreateProcedure: {
        const auto& procedure = as<CreateProcedure>(statement);
        create_module(statement, CatalogKind::Procedure, procedure.mode, procedure.name, out);
        break;
    }
    default: {
        const auto& trigger = as<CreateTrigger>(statement);
        create_module(statement, CatalogKind::Trigger, trigger.mode, trigger.name, out);
    }
    }
}

} // namespace tsql

// Walks the steps; steps that hold no statement are named only.
#include "tsql/plan/plan_text.h"

namespace tsql {

namespace {

class Writer {
public:
    void steps(const Steps& all) {
        for (const Step& step : all) {
            std::visit([&](const auto& action) { write(action); }, step.action);
        }
    }
    std::string take() { return std::move(text_); }

private:
    void line(const std::string& what) { text_ += std::string(depth_ * 2, ' ') + what + '\n'; }

    static std::string source(const PlanParameter& parameter) {
        const std::string index = " " + std::to_string(parameter.index);
        switch (parameter.source) {
        case ParameterSource::Literal: return "literal" + index;
        case ParameterSource::Constant: return "constant" + index;
        case ParameterSource::Variable: return "variable" + index;
        case ParameterSource::System:
            return "system " + std::to_string(static_cast<int>(parameter.system));
        case ParameterSource::Row: return "cell" + index;
        case ParameterSource::RowMark: return "row mark";
        }
        return "";
    }

    void parameters(const std::string& mark, const std::vector<PlanParameter>& all) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            const PlanParameter& parameter = all[i];
            std::string shown = mark + std::to_string(i + 1) + " " + source(parameter) + " " +
                                parameter.type.text();
            if (parameter.how != Conversion::None) {
                shown +=
                    (parameter.how == Conversion::Assign ? " into " : " as ") + parameter.to.text();
            }
            line(shown);
        }
    }

    void sql(const std::string& word, const SqlText& statement) {
        line(word + " " + statement.text);
        ++depth_;
        parameters("?", statement.parameters);
        --depth_;
    }

    static std::string running(const RunningValue& value) {
        const std::string cell = " " + std::to_string(value.cell);
        const std::string otherwise = cell + " else " + std::to_string(value.otherwise);
        const std::string within = " within " + std::to_string(value.partition);
        switch (value.kind) {
        case RunningValue::Kind::Sum: return "sum" + cell + within;
        case RunningValue::Kind::Count: return "count" + cell + within;
        case RunningValue::Kind::Number: return "number" + within;
        case RunningValue::Kind::Before: return "before" + otherwise + within;
        }
        return "";
    }

    static std::string shown(const RowOrder& order, int number) {
        const ShownValue& value = order.values[static_cast<std::size_t>(number)];
        switch (value.kind) {
        case ShownValue::Kind::Null: return "NULL";
        case ShownValue::Kind::Cell: return std::to_string(value.place);
        case ShownValue::Kind::Constant: return "!" + std::to_string(value.place + 1);
        case ShownValue::Kind::Number: return "#" + std::to_string(value.place);
        case ShownValue::Kind::Step: return "step";
        case ShownValue::Kind::Within: return "within(" + shown(order, value.otherwise) + ")";
        case ShownValue::Kind::Choice: break;
        }
        std::string text = "(";
        for (const ShownValue::Branch& branch : value.branches) {
            text += shown(order, branch.left) + "=" + shown(order, branch.right) + " ? " +
                    shown(order, branch.then) + " : ";
        }
        return text + shown(order, value.otherwise) + ")";
    }

    // Cells are numbered from 0, running values behind them; constants are marked !1, !2 …
    void order(const RowOrder& order) {
        std::string keys = "in order of";
        for (std::size_t i = 0; i < order.descending.size(); ++i) {
            keys += " " + std::to_string(i) + (order.descending[i] ? " down" : "");
        }
        line(keys);
        for (const RunningValue& value : order.running) {
            line("running " + running(value));
        }
        parameters("!", order.constants);
        if (!order.steps.empty()) {
            std::string steps = "in steps";
            for (const std::int64_t step : order.steps) {
                steps += " " + std::to_string(step);
            }
            line(steps);
        }
        if (order.condition >= 0) {
            line("where " + shown(order, order.condition) + "=#1");
        }
        std::string columns = "showing";
        for (const int number : order.shown) {
            columns += " " + shown(order, number);
        }
        line(columns);
    }

    void inner(const std::string& word, const Steps& body) {
        line(word);
        ++depth_;
        steps(body);
        --depth_;
    }

    void write(const SqlQuery& query) {
        sql("query", query.sql);
        ++depth_;
        if (query.order) {
            order(*query.order);
        }
        for (const PlanColumn& column : query.columns) {
            line((column.name.empty() ? "(no name)" : column.name) + " " + column.type.text());
        }
        --depth_;
    }
    void write(const SqlAssign& assign) {
        std::string word = "assign";
        for (const int slot : assign.slots) {
            word += " " + std::to_string(slot);
        }
        sql(word + ":", assign.sql);
    }
    void write(const SqlDml& dml) {
        for (const SqlText& text : dml.prepare) {
            sql("prepare", text);
        }
        sql(dml.repeatable ? "change, repeatable" : "change", dml.main);
        for (const SqlText& text : dml.unique_retry) {
            sql("in turns", text);
        }
        for (const SqlText& text : dml.collect) {
            sql("collect", text);
        }
        if (dml.output) {
            write(*dml.output);
        }
        for (const std::string& trigger : dml.triggers) {
            line("trigger " + trigger);
        }
    }
    void write(const InsertExecute& step) {
        inner("rows of", step.execute);
        inner("into", step.insert);
    }
    void write(const Ddl& ddl) {
        for (const SqlQuery& constant : ddl.constants) {
            sql("constant", constant.sql);
        }
        for (const std::string& text : ddl.sql) {
            line("define " + text);
        }
        for (const std::string& name : ddl.change.drop) {
            line("drop " + name);
        }
        for (const auto& object : ddl.change.put) {
            line("keep " + object->name +
                 (object->definition.empty() ? "" : ": " + object->definition));
        }
    }
    void write(const PrepareTable& step) { line("prepare " + step.create); }
    void write(const FillFunctionTable& step) {
        sql("fill from " + step.function, step.arguments);
        line("  " + step.insert);
    }
    void write(const IfStep& step) {
        sql("if", step.condition);
        inner("then", step.then);
        if (!step.otherwise.empty()) {
            inner("else", step.otherwise);
        }
    }
    void write(const WhileStep& step) {
        sql("while", step.condition);
        inner("do", step.body);
    }
    void write(const BlockStep& step) { inner("block", step.body); }
    void write(const TryStep& step) {
        inner("try", step.body);
        inner("catch", step.handler);
    }
    void write(const ReturnStep& step) {
        if (step.value) {
            sql("return", *step.value);
        } else {
            line("return");
        }
    }
    void write(const PrintStep& step) { sql("print", step.message); }
    void write(const ExecuteTextStep& step) { sql("execute text", step.text); }
    void write(const ExecuteStep& step) {
        line("execute " + step.procedure);
        ++depth_;
        for (const ExecuteArgument& argument : step.arguments) {
            const std::string name = argument.parameter.empty() ? "argument" : argument.parameter;
            if (argument.value) {
                sql(name, argument.value->sql);
            } else {
                line(name + " default");
            }
        }
        --depth_;
    }
    void write(const RaiseErrorStep& step) { sql("raise", step.values); }
    void write(const ThrowStep& step) {
        if (step.values) {
            sql("throw", *step.values);
        } else {
            line("throw again");
        }
    }
    void write(const SetOptionStep& step) {
        line("set " + step.option +
             (step.value.empty() ? step.on ? " on" : " off" : " " + step.value));
    }
    void write(const DeclareCursorStep& step) { sql("cursor " + step.name, step.query.sql); }
    void write(const BreakStep&) { line("break"); }
    void write(const ContinueStep&) { line("continue"); }
    void write(const BeginTransactionStep&) { line("begin transaction"); }
    void write(const CommitStep&) { line("commit"); }
    void write(const RollbackStep&) { line("rollback"); }
    void write(const SaveTransactionStep& step) { line("save " + step.name); }
    void write(const OpenCursorStep& step) { line("open " + step.name); }
    void write(const FetchCursorStep& step) { line("fetch " + step.name); }
    void write(const CloseCursorStep& step) { line("close " + step.name); }
    void write(const DeallocateCursorStep& step) { line("deallocate " + step.name); }
    void write(const DeferredStep&) { line("when reached"); }

    std::string text_;
    std::size_t depth_ = 0;
};

} // namespace

std::string plan_text(const Plan& plan) {
    Writer writer;
    writer.steps(plan.steps);
    return writer.take();
}

} // namespace tsql

// What the shown columns are made of, once the values run: cells, constants and choices between
// them. Whatever else is needed of a row is worked out by the text before the rows are ordered.
#include "tsql/emit/sqlite/emitter.h"
#include "tsql/emit/sqlite/running.h"

#include <algorithm>
#include <utility>

namespace tsql::sqlite {

namespace {

const BoundPtr& without_conversions(const BoundPtr& value) {
    return value->kind == BoundKind::Convert
               ? without_conversions(static_cast<const BoundConvert&>(*value).operand)
               : value;
}

bool has_window(const BoundPtr& value) {
    std::vector<const BoundAggregate*> windows;
    collect_windows(value, windows);
    return !windows.empty();
}

bool are_numbers(const BoundPtr& left, const BoundPtr& right) {
    return left && left->type.is_exact() && right->type.is_exact();
}

} // namespace

int Emitter::cell_of(const BoundPtr& value, RunningRows& rows) {
    if (value->kind == BoundKind::Column) {
        const auto& column = static_cast<const BoundColumn&>(*value);
        for (std::size_t i = 0; i < rows.values.size(); ++i) {
            if (rows.values[i]->kind != BoundKind::Column) {
                continue;
            }
            const auto& known = static_cast<const BoundColumn&>(*rows.values[i]);
            if (known.table == column.table && known.ordinal == column.ordinal) {
                return static_cast<int>(i);
            }
        }
    }
    Fragment cell = value_of(value);
    // A conversion that changes nothing is the column itself.
    const BoundPtr& core = without_conversions(value);
    if (core != value && core->kind == BoundKind::Column && value_of(core).text == cell.text) {
        return cell_of(core, rows);
    }
    rows.values.push_back(value);
    rows.cells.push_back(std::move(cell));
    return static_cast<int>(rows.cells.size()) - 1;
}

int Emitter::narrow_cell(const BoundPtr& value, RunningRows& rows) {
    const int cell = cell_of(value, rows);
    return rows.cells[static_cast<std::size_t>(cell)].form == Form::Narrow ? cell : -1;
}

// A literal or variable goes to the engine once, not with every row.
int Emitter::shown_constant(const BoundPtr& value, RunningRows& rows) {
    const BoundKind kind = without_conversions(value)->kind;
    if (kind != BoundKind::Literal && kind != BoundKind::Value) {
        return -1;
    }
    return taken_constant(rows, [&] { return value_of(value); });
}

// A number written down beside one of more decimals is compared with these.
int Emitter::shown_operand(const BoundPtr& value, int scale, RunningRows& rows) {
    const int own = value->type.stored_scale();
    if (own == scale) {
        return shown_value(value, rows);
    }
    const int digits = as_decimal(value->type).precision - own + scale;
    if (value->kind != BoundKind::Literal || own > scale || digits > 18) {
        return -1;
    }
    return taken_constant(rows, [&] {
        return literal(static_cast<const BoundLiteral&>(*value), Type::decimal(digits, scale),
                       Conversion::Cast, 0);
    });
}

// The one parameter that the fragment is, taken out of the text.
int Emitter::taken_constant(RunningRows& rows, const std::function<Fragment()>& emit) {
    std::vector<PlanParameter> outer = std::exchange(parameters_, {});
    ++conditional_;
    const Fragment fragment = emit();
    --conditional_;
    const std::vector<PlanParameter> own = std::exchange(parameters_, std::move(outer));
    if (fragment.text == "NULL") {
        return rows.add(ShownValue::Kind::Null, 0);
    }
    if (fragment.text != "?1" || own.size() != 1 || fragment.form != Form::Narrow) {
        return -1;
    }
    rows.order.constants.push_back(own.front());
    return rows.add(ShownValue::Kind::Constant, static_cast<int>(rows.order.constants.size()) - 1);
}

int Emitter::shown_value(const BoundPtr& value, RunningRows& rows) {
    if (const int constant = shown_constant(value, rows); constant >= 0) {
        return constant;
    }
    if (rows.outside && value->kind == BoundKind::Column) {
        return shown_outside(static_cast<const BoundColumn&>(*value), value, rows);
    }
    if (value->kind == BoundKind::Aggregate && has_window(value)) {
        return shown_window(static_cast<const BoundAggregate&>(*value), rows);
    }
    if (!rows.outside && !has_window(value)) {
        if (rows.conditional == 0) {
            const bool chosen = value->kind == BoundKind::Case;
            const int choice = chosen ? shown_plain_choice(value, rows) : -1;
            return choice >= 0 ? choice : rows.add(ShownValue::Kind::Cell, cell_of(value, rows));
        }
        // A branch that is not reached must not be worked out, lest it fail; a column cannot.
        const BoundPtr& core = without_conversions(value);
        if (core->kind == BoundKind::Column) {
            const int cell = value_of(value).text == value_of(core).text ? narrow_cell(core, rows)
                                                                         : -1;
            return cell < 0 ? -1 : rows.add(ShownValue::Kind::Cell, cell);
        }
    }
    if (value->kind == BoundKind::Case) {
        return shown_choice(static_cast<const BoundCase&>(*value), rows);
    }
    if (value->kind == BoundKind::Convert) {
        return shown_conversion(static_cast<const BoundConvert&>(*value), rows);
    }
    return -1;
}

// A column as the query around the table with windows names it. The table's rows are worked out
// whole, so that nothing depends on which branch asks for the column.
int Emitter::shown_outside(const BoundColumn& column, const BoundPtr& value, RunningRows& rows) {
    if (column.table == rows.steps) {
        return rows.add(ShownValue::Kind::Step, 0);
    }
    if (column.table != rows.table) {
        return -1;
    }
    const int conditional = std::exchange(rows.conditional, 0);
    rows.outside = false;
    const int number = shown_value(behind(value, rows.table), rows);
    rows.outside = true;
    rows.conditional = conditional;
    // Choices compare whole numbers; one in its 16 bytes is none.
    return number >= 0 && rows.is_wide(number) ? -1 : number;
}

// The value `then` where the condition holds, `otherwise` where it does not or is unknown; -1 when
// it is none of those that the engine can look at.
int Emitter::shown_condition(const BoundPtr& condition, int then, int otherwise,
                             RunningRows& rows) {
    if (condition->kind == BoundKind::Logical) {
        const auto& node = static_cast<const BoundLogical&>(*condition);
        const bool all = node.op == LogicalOperator::And;
        int rest = all ? then : otherwise;
        for (std::size_t i = node.operands.size(); i-- > 0 && rest >= 0;) {
            rest = shown_condition(node.operands[i], all ? rest : then, all ? otherwise : rest,
                                   rows);
        }
        return rest;
    }
    if (condition->kind == BoundKind::Comparison) {
        const auto& node = static_cast<const BoundComparison&>(*condition);
        if (node.op != ComparisonOperator::Equal || !are_numbers(node.left, node.right)) {
            return -1;
        }
        const int scale = std::max(node.left->type.stored_scale(), node.right->type.stored_scale());
        return rows.choose(shown_operand(node.left, scale, rows),
                           shown_operand(node.right, scale, rows), then, otherwise);
    }
    if (condition->kind == BoundKind::IsNull) {
        // Only NULL is not equal to itself.
        const auto& node = static_cast<const BoundUnary&>(*condition);
        const int operand = node.operand->type.is_exact() ? shown_value(node.operand, rows) : -1;
        return rows.choose(operand, operand, node.negated ? then : otherwise,
                           node.negated ? otherwise : then);
    }
    return -1;
}

int Emitter::shown_choice(const BoundCase& node, RunningRows& rows) {
    ShownValue choice;
    choice.kind = ShownValue::Kind::Choice;
    ++rows.conditional;
    bool known = true;
    for (const BoundCaseBranch& branch : node.branches) {
        BoundPtr left = node.subject;
        BoundPtr right = branch.when;
        if (!left && branch.when->kind == BoundKind::Comparison) {
            const auto& comparison = static_cast<const BoundComparison&>(*branch.when);
            if (comparison.op == ComparisonOperator::Equal) {
                left = comparison.left;
                right = comparison.right;
            }
        }
        if (!are_numbers(left, right)) {
            known = false;
            break;
        }
        const int scale = std::max(left->type.stored_scale(), right->type.stored_scale());
        const ShownValue::Branch made{shown_operand(left, scale, rows),
                                      shown_operand(right, scale, rows),
                                      shown_value(branch.then, rows)};
        known = known && made.left >= 0 && made.right >= 0 && made.then >= 0;
        choice.branches.push_back(made);
    }
    choice.otherwise = node.otherwise ? shown_value(node.otherwise, rows)
                                      : rows.add(ShownValue::Kind::Null, 0);
    --rows.conditional;
    return known && choice.otherwise >= 0 ? rows.add(std::move(choice)) : -1;
}

// A choice between columns and constants needs no text in every row.
int Emitter::shown_plain_choice(const BoundPtr& value, RunningRows& rows) {
    const std::size_t cells = rows.cells.size();
    const int choice = shown_choice(static_cast<const BoundCase&>(*value), rows);
    if (choice < 0) {
        rows.cells.resize(cells);
        rows.values.resize(cells);
    }
    return choice;
}

// Between exact types of one scale only the size matters.
int Emitter::shown_conversion(const BoundConvert& node, RunningRows& rows) {
    const Type& from = node.operand->type;
    const Type& to = node.type;
    if (node.mode == ConvertMode::Try || !from.is_exact() || !to.is_exact() ||
        to.kind == TypeKind::Bit || from.stored_scale() != to.stored_scale()) {
        return -1;
    }
    const int operand = shown_value(node.operand, rows);
    if (operand < 0 || bound_of(to) >= narrow_limit || bound_of(from) <= bound_of(to)) {
        return operand;
    }
    ShownValue within;
    within.kind = ShownValue::Kind::Within;
    within.otherwise = operand;
    within.limit = static_cast<std::int64_t>(bound_of(to));
    return rows.add(std::move(within));
}

int Emitter::shown_window(const BoundAggregate& node, RunningRows& rows) {
    RunningValue running;
    running.partition = partition_keys(*node.window, rows.keys);
    if (node.name == "ROW_NUMBER" || node.arguments.empty()) {
        running.kind = RunningValue::Kind::Number;
    } else {
        running.cell = narrow_cell(node.arguments[0], rows);
        running.kind = node.name == "SUM"   ? RunningValue::Kind::Sum
                       : node.name == "LAG" ? RunningValue::Kind::Before
                                            : RunningValue::Kind::Count;
        if (node.name == "LAG") {
            running.otherwise = node.arguments.size() < 3 ? -1
                                                          : narrow_cell(node.arguments[2], rows);
        }
        const bool wide = node.arguments.size() == 3 && running.otherwise < 0;
        if (running.cell < 0 || wide) {
            return -1;
        }
    }
    auto& all = rows.order.running;
    std::size_t place = 0;
    while (place < all.size() && !(all[place] == running)) {
        ++place;
    }
    if (place == all.size()) {
        all.push_back(running);
    }
    return rows.add(ShownValue::Kind::Cell, -1 - static_cast<int>(place));
}

} // namespace tsql::sqlite

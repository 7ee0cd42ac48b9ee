// Walks the tree of a shown column; branches that are not taken are not looked at.
#include "engines/sqlite/executor/shown_row.h"

#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

using Kind = RowCell::Kind;
using NodeKind = tsql::ShownValue::Kind;

bool equal_numbers(const RowCell& left, const RowCell& right) {
    return left.kind == Kind::integer && right.kind == Kind::integer &&
           left.integer == right.integer;
}

RowCell cell_of_number(std::int64_t number) {
    RowCell cell;
    cell.kind = Kind::integer;
    cell.integer = number;
    return cell;
}

RowCell cell_of_constant(const OwnedValue& constant) {
    const Stored value = constant.get();
    RowCell cell;
    switch (value.form) {
    case Stored::Form::null: break;
    case Stored::Form::integer:
        cell.kind = Kind::integer;
        cell.integer = static_cast<std::int64_t>(value.integer);
        break;
    case Stored::Form::real:
        cell.kind = Kind::real;
        cell.real = value.real;
        break;
    case Stored::Form::text:
    case Stored::Form::bytes:
        cell.kind = value.form == Stored::Form::text ? Kind::text : Kind::bytes;
        cell.text = constant.characters();
        break;
    }
    return cell;
}

} // namespace

ShownRow::ShownRow(const tsql::RowOrder& order, const OrderedRows& rows,
                   const std::vector<OwnedValue>& constants)
    : rows_(rows) {
    for (const OwnedValue& constant : constants) constants_.push_back(cell_of_constant(constant));
    if (order.steps.empty()) trees_.push_back(tree_of(order, 0));
    for (const std::int64_t step : order.steps) trees_.push_back(tree_of(order, step));
    tree_ = trees_.data();
}

// ---- what a step decides

// The parts of a node come before it, so that they are made when it is looked at.
ShownRow::Tree ShownRow::tree_of(const tsql::RowOrder& order, std::int64_t step) const {
    Tree tree;
    std::vector<int> made; // by node of the order
    const auto made_of = [&made](int number) { return made[static_cast<std::size_t>(number)]; };
    for (tsql::ShownValue value : order.values) {
        int number = static_cast<int>(tree.values.size());
        if (value.kind == NodeKind::Step) {
            value.kind = NodeKind::Number;
            value.place = static_cast<int>(step);
        } else if (value.kind == NodeKind::Within) {
            value.otherwise = made_of(value.otherwise);
        } else if (value.kind == NodeKind::Choice) {
            for (tsql::ShownValue::Branch& branch : value.branches)
                branch = {made_of(branch.left), made_of(branch.right), made_of(branch.then)};
            value.otherwise = made_of(value.otherwise);
            if (const int one = chosen(tree, value); one >= 0) number = one;
        }
        if (number == static_cast<int>(tree.values.size())) tree.values.push_back(std::move(value));
        made.push_back(number);
    }
    for (const int number : order.shown) tree.shown.push_back(made_of(number));
    if (order.condition >= 0) tree.condition = made_of(order.condition);
    return tree;
}

bool ShownRow::is_fixed(const tsql::ShownValue& value, RowCell& cell) const {
    switch (value.kind) {
    case NodeKind::Null: return true;
    case NodeKind::Constant:
        cell = constants_[static_cast<std::size_t>(value.place)];
        return true;
    case NodeKind::Number: cell = cell_of_number(value.place); return true;
    default: return false;
    }
}

// The value that every row takes, -1 where the rows differ. Drops the branches that none takes.
int ShownRow::chosen(const Tree& tree, tsql::ShownValue& choice) const {
    const auto value = [&tree](int number) -> const tsql::ShownValue& {
        return tree.values[static_cast<std::size_t>(number)];
    };
    while (!choice.branches.empty()) {
        const tsql::ShownValue::Branch& branch = choice.branches.front();
        RowCell left, right;
        if (!is_fixed(value(branch.left), left) || !is_fixed(value(branch.right), right)) return -1;
        if (equal_numbers(left, right)) return branch.then;
        choice.branches.erase(choice.branches.begin());
    }
    return choice.otherwise;
}

// ---- what the rows decide

bool ShownRow::number_of(std::size_t row, int number, std::int64_t& value) const {
    const RowCell cell = evaluate(row, number);
    value = cell.integer;
    return cell.kind == Kind::integer;
}

bool ShownRow::are_equal(std::size_t row, const tsql::ShownValue::Branch& branch) const {
    std::int64_t left = 0, right = 0;
    return number_of(row, branch.left, left) && number_of(row, branch.right, right) &&
           left == right;
}

RowCell ShownRow::evaluate(std::size_t row, int number) const {
    const tsql::ShownValue& value = node(number);
    switch (value.kind) {
    case NodeKind::Cell: return rows_.cell(row, static_cast<std::size_t>(value.place));
    case NodeKind::Choice:
        for (const tsql::ShownValue::Branch& branch : value.branches)
            if (are_equal(row, branch)) return evaluate(row, branch.then);
        return evaluate(row, value.otherwise);
    case NodeKind::Within: {
        const RowCell cell = evaluate(row, value.otherwise);
        if (cell.kind == Kind::integer &&
            (cell.integer >= value.limit || cell.integer <= -value.limit))
            raise_overflow("numeric");
        return cell;
    }
    default: {
        RowCell cell;
        is_fixed(value, cell);
        return cell;
    }
    }
}

bool ShownRow::is_wanted(std::size_t row) const {
    std::int64_t wanted = 1;
    return tree_->condition < 0 || (number_of(row, tree_->condition, wanted) && wanted == 1);
}

Stored ShownRow::value(std::size_t row, std::size_t column, const tsql::Type& type) const {
    const tsql::ShownValue& shown = node(tree_->shown[column]);
    const RowCell cell = shown.kind == NodeKind::Cell
                             ? rows_.cell(row, static_cast<std::size_t>(shown.place))
                             : evaluate(row, tree_->shown[column]);
    switch (cell.kind) {
    case Kind::null: break;
    case Kind::integer: return Stored::of(cell.integer);
    case Kind::real: return Stored::of_real(cell.real);
    case Kind::text: return Stored::of_text(cell.text);
    case Kind::bytes: return stored_bytes(cell.text, type);
    }
    return Stored::null();
}

} // namespace engines

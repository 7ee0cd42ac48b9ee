// Walks the tree of a shown column; branches that are not taken are not looked at.
#include "engines/sqlite/executor/shown_row.h"

#include "engines/sqlite/functions/call.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

using Kind = RowCell::Kind;

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
    : order_(order), rows_(rows) {
    for (const OwnedValue& constant : constants) constants_.push_back(cell_of_constant(constant));
}

RowCell ShownRow::evaluate(std::size_t row, int number) const {
    const tsql::ShownValue& value = node(number);
    switch (value.kind) {
    case tsql::ShownValue::Kind::Null: break;
    case tsql::ShownValue::Kind::Cell:
        return rows_.cell(row, static_cast<std::size_t>(value.place));
    case tsql::ShownValue::Kind::Constant: return constants_[static_cast<std::size_t>(value.place)];
    case tsql::ShownValue::Kind::Number: return cell_of_number(value.place);
    case tsql::ShownValue::Kind::Step: return cell_of_number(step_);
    case tsql::ShownValue::Kind::Choice:
        for (const tsql::ShownValue::Branch& branch : value.branches)
            if (equal_numbers(evaluate(row, branch.left), evaluate(row, branch.right)))
                return evaluate(row, branch.then);
        return evaluate(row, value.otherwise);
    case tsql::ShownValue::Kind::Within: {
        const RowCell cell = evaluate(row, value.otherwise);
        if (cell.kind == Kind::integer &&
            (cell.integer >= value.limit || cell.integer <= -value.limit))
            raise_overflow("numeric");
        return cell;
    }
    }
    return {};
}

bool ShownRow::is_wanted(std::size_t row) const {
    return order_.condition < 0 ||
           equal_numbers(evaluate(row, order_.condition), cell_of_number(1));
}

Stored ShownRow::value(std::size_t row, std::size_t column, const tsql::Type& type) const {
    const tsql::ShownValue& shown = node(order_.shown[column]);
    const RowCell cell = shown.kind == tsql::ShownValue::Kind::Cell
                             ? rows_.cell(row, static_cast<std::size_t>(shown.place))
                             : evaluate(row, order_.shown[column]);
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

// Rows to receivers without an allocation a row.
#include "engines/sqlite/executor/sink.h"

namespace engines {
namespace {

using tsql::TypeKind;

ValueKind kind_of(const tsql::Type& type) {
    switch (type.kind) {
    case TypeKind::Bit: return ValueKind::bit;
    case TypeKind::TinyInt:
    case TypeKind::SmallInt:
    case TypeKind::Int:
    case TypeKind::BigInt: return ValueKind::integer;
    case TypeKind::SmallMoney:
    case TypeKind::Money:
    case TypeKind::Decimal: return ValueKind::decimal;
    case TypeKind::Real:
    case TypeKind::Float: return ValueKind::real;
    case TypeKind::Date: return ValueKind::date;
    case TypeKind::SmallDateTime: return ValueKind::smalldatetime;
    case TypeKind::DateTime: return ValueKind::datetime;
    case TypeKind::UniqueIdentifier: return ValueKind::guid;
    case TypeKind::Binary:
    case TypeKind::VarBinary: return ValueKind::binary;
    default: return ValueKind::text;
    }
}

} // namespace

Column column_of(const tsql::PlanColumn& column) {
    Column shown;
    shown.name = column.name;
    shown.kind = kind_of(column.type);
    shown.precision = column.type.is_money() ? 19 : column.type.precision;
    shown.scale = column.type.stored_scale();
    shown.length = column.type.length;
    shown.nullable = column.nullable;
    return shown;
}

void ClientSink::begin(std::span<const tsql::PlanColumn> columns) {
    types_.clear();
    columns_.clear();
    types_.reserve(columns.size());
    columns_.reserve(columns.size());
    for (const auto& column : columns) {
        types_.push_back(column.type);
        columns_.push_back(column_of(column));
    }
    cells_.resize(types_.size());
    receiver_.begin_set(columns_);
}

bool ClientSink::row(std::span<const Stored> cells) {
    for (std::size_t i = 0; i < types_.size(); ++i) cells_[i] = cell_of(cells[i], types_[i]);
    return receiver_.row(cells_);
}

void KeepingSink::begin(std::span<const tsql::PlanColumn> columns) {
    types_.clear();
    for (const auto& column : columns) types_.push_back(column.type);
}

bool KeepingSink::row(std::span<const Stored> cells) {
    std::vector<TypedValue> kept(types_.size());
    for (std::size_t i = 0; i < types_.size(); ++i) {
        kept[i].type = types_[i];
        kept[i].value.set(cells[i]);
    }
    rows.push_back(std::move(kept));
    return true;
}

void show_row(ResultReceiver& receiver, std::span<const tsql::PlanColumn> columns,
              const std::vector<TypedValue>& row) {
    std::vector<Column> shown;
    for (const auto& column : columns) shown.push_back(column_of(column));
    std::vector<Value> cells;
    for (const TypedValue& cell : row) cells.push_back(cell_of(cell.value.get(), cell.type));
    receiver.begin_set(shown);
    receiver.row(cells);
    receiver.end_set();
}

} // namespace engines

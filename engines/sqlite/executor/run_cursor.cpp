// DECLARE, OPEN and FETCH of cursors.
#include "engines/sqlite/conversion/convert.h"
#include "engines/sqlite/executor/executor.h"
#include "engines/sqlite/raise.h"

namespace engines {
namespace {

Cursor& cursor_named(Cursors& cursors, const std::string& name) {
    const auto found = cursors.find(name);
    if (found == cursors.end())
        raise_error(16916, "A cursor with the name '" + name + "' does not exist.");
    return found->second;
}

// The row that a direction leads to; may lie outside the rows.
std::int64_t destination(tsql::FetchDirection direction, const Cursor& cursor,
                         std::int64_t position) {
    const auto count = static_cast<std::int64_t>(cursor.rows.size());
    switch (direction) {
    case tsql::FetchDirection::Next: return cursor.place + 1;
    case tsql::FetchDirection::Prior: return cursor.place - 1;
    case tsql::FetchDirection::First: return 0;
    case tsql::FetchDirection::Last: return count - 1;
    case tsql::FetchDirection::Absolute: return position > 0 ? position - 1 : count + position;
    case tsql::FetchDirection::Relative: return cursor.place + position;
    }
    return count;
}

} // namespace

Flow Executor::declare_cursor(const tsql::DeclareCursorStep& step) {
    if (cursors_.contains(step.name))
        raise_error(16915, "A cursor with the name '" + step.name + "' already exists.");
    Cursor cursor;
    cursor.owner = frame_->owner;
    cursor.query = &step.query;
    cursor.plan = frame_->plan;
    cursor.literals = *frame_->literals;
    cursors_.emplace(step.name, std::move(cursor));
    return Flow::next;
}

Flow Executor::open_cursor(const tsql::OpenCursorStep& step) {
    Cursor& cursor = cursor_named(cursors_, step.name);
    if (cursor.open) raise_error(16905, "The cursor is already open.");
    KeepingSink kept;
    {
        // The query belongs to the text that declared the cursor, the variables to this one.
        Frame declared = *frame_;
        declared.owner = cursor.owner;
        declared.literals = &cursor.literals;
        declared.plan = cursor.plan;
        const FrameScope scope(frame_, declared);
        run_query(*cursor.query, kept);
    }
    cursor.rows = std::move(kept.rows);
    cursor.place = -1;
    cursor.open = true;
    return Flow::next;
}

Flow Executor::fetch(const tsql::FetchCursorStep& step) {
    Cursor& cursor = cursor_named(cursors_, step.name);
    if (!cursor.open) raise_error(16917, "Cursor is not open.");
    std::int64_t position = 0;
    if (step.position)
        position = static_cast<std::int64_t>(
            cell_of_text(*step.position, tsql::Type::of(tsql::TypeKind::BigInt)).get().integer);
    const auto count = static_cast<std::int64_t>(cursor.rows.size());
    cursor.place =
        std::clamp<std::int64_t>(destination(step.direction, cursor, position), -1, count);
    if (cursor.place < 0 || cursor.place >= count) {
        fetch_status_ = -1;
        row_count_ = 0;
        return Flow::next;
    }
    fetch_status_ = 0;
    row_count_ = 1;
    const std::vector<TypedValue>& row = cursor.rows[static_cast<std::size_t>(cursor.place)];
    if (step.slots.empty()) {
        show_row(*receiver_, cursor.query->columns, row);
        return Flow::next;
    }
    if (step.slots.size() != row.size())
        raise_error(16924, "Cursorfetch: The number of variables declared in the INTO list must "
                           "match that of selected columns.");
    for (std::size_t i = 0; i < row.size(); ++i) {
        std::string buffer;
        frame_->variables[static_cast<std::size_t>(step.slots[i])].set(
            convert(row[i].value.get(), row[i].type, step.types[i], 0, Fit::cut, buffer));
    }
    return Flow::next;
}

} // namespace engines
